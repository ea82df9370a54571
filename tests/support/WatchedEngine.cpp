#include "support/WatchedEngine.h"

#include <msxml2.h>
#include <objbase.h>

#include <algorithm>
#include <array>
#include <bit>
#include <concepts>
#include <map>
#include <set>

namespace norvepa::test
{

namespace
{

// Those that the library asks for by their number, for which MinGW-w64 has no constants.
constexpr IID DocumentInterface = {
    0x2933bf95, 0x7b36, 0x11d2, {0xb2, 0x0e, 0x00, 0xc0, 0x4f, 0x98, 0x3e, 0x60}};
constexpr IID ElementInterface = {
    0x2933bf86, 0x7b36, 0x11d2, {0xb2, 0x0e, 0x00, 0xc0, 0x4f, 0x98, 0x3e, 0x60}};
constexpr IID CollectionInterface = {
    0x373984c8, 0xb845, 0x449b, {0x91, 0xe7, 0x45, 0xac, 0x83, 0x03, 0x6a, 0xde}};

std::map<void**, void*> originals; // of each slot of a table of methods that leads here
std::set<void*> held;
std::size_t mostHeld = 0;
std::size_t callsToFailure = 0; // 0 for never
HRESULT failure = E_OUTOFMEMORY;
bool failed = false;
bool inside = false; // of the engine, whose calls to itself are its own affair

// The engine at work on a call.
class Inside
{
public:
    Inside() { inside = true; }
    Inside(const Inside&) = delete;
    Inside& operator=(const Inside&) = delete;
    ~Inside() { inside = false; }
};

bool IsToFail()
{
    if (callsToFailure == 0 || --callsToFailure != 0)
    {
        return false;
    }
    failed = true;
    return true;
}

template <typename... Arguments>
HRESULT Refuse(Arguments...)
{
    return failure;
}

HRESULT Refuse(long* code)
{
    *code = failure;
    return S_OK;
}

void** TableOf(void* object)
{
    return *static_cast<void***>(object);
}

void Divert(void** slot, void* function)
{
    if (originals.try_emplace(slot, *slot).second)
    {
        StoreFunction(slot, function);
    }
}

void Meet(IXMLDOMDocument2* document);
void Meet(IXMLDOMElement* element);
void Meet(IXMLDOMNode* node);
void Meet(IXMLDOMNamedNodeMap* map);
void Meet(IXMLDOMParseError* error);
void Meet(IXMLDOMSchemaCollection* collection);

void MeetOutput(...) {}

template <std::derived_from<IUnknown> Object>
void MeetOutput(Object** output)
{
    if (*output != nullptr)
    {
        Meet(*output);
    }
}

template <typename... Arguments>
void MeetOutputs(Arguments... arguments)
{
    (MeetOutput(arguments), ...);
}

void MeetOutputs(REFIID interfaceId, void** output)
{
    if (interfaceId == DocumentInterface)
    {
        Meet(static_cast<IXMLDOMDocument2*>(*output));
    }
    if (interfaceId == ElementInterface)
    {
        Meet(static_cast<IXMLDOMElement*>(*output));
    }
    if (interfaceId == CollectionInterface)
    {
        Meet(static_cast<IXMLDOMSchemaCollection*>(*output));
    }
}

// What stands in for a method. Its slot is the method's address: one more than the slot's offset.
template <auto Method>
struct StandIn;

template <typename Interface, typename... Arguments,
          HRESULT (STDMETHODCALLTYPE Interface::*Method)(Arguments...)>
struct StandIn<Method>
{
    static void** SlotOf(void* object)
    {
        const auto address = std::bit_cast<std::array<std::size_t, 2>>(Method);
        return TableOf(object) + (address[0] - 1) / sizeof(void*);
    }

    static HRESULT STDMETHODCALLTYPE Call(Interface* object, Arguments... arguments)
    {
        const auto original = reinterpret_cast<decltype(&Call)>(originals.at(SlotOf(object)));
        if (inside)
        {
            return original(object, arguments...);
        }
        if (IsToFail())
        {
            return Refuse(arguments...);
        }
        const Inside engine;
        const HRESULT status = original(object, arguments...);
        if (SUCCEEDED(status))
        {
            MeetOutputs(arguments...);
        }
        return status;
    }
};

template <auto... Methods>
void Watch(void* object)
{
    (Divert(StandIn<Methods>::SlotOf(object), reinterpret_cast<void*>(&StandIn<Methods>::Call)), ...);
}

ULONG STDMETHODCALLTYPE Release(IUnknown* object)
{
    const auto original = reinterpret_cast<decltype(&Release)>(originals.at(TableOf(object) + 2));
    const ULONG references = original(object);
    if (references == 0)
    {
        held.erase(object);
    }
    return references;
}

void CountObject(void* object)
{
    Divert(TableOf(object) + 2, reinterpret_cast<void*>(&Release));
    held.insert(object);
    mostHeld = std::max(mostHeld, held.size());
}

// Not the template of the same name.
constexpr HRESULT (STDMETHODCALLTYPE IUnknown::*QueryInterface)(REFIID, void**) = &IUnknown::QueryInterface;

void Meet(IXMLDOMNode* node)
{
    CountObject(node);
    Watch<QueryInterface, &IXMLDOMNode::get_nodeName, &IXMLDOMNode::get_nodeType, &IXMLDOMNode::get_text,
          &IXMLDOMNode::put_text, &IXMLDOMNode::get_firstChild, &IXMLDOMNode::get_nextSibling,
          &IXMLDOMNode::get_parentNode, &IXMLDOMNode::get_attributes, &IXMLDOMNode::appendChild,
          &IXMLDOMNode::removeChild>(node);
}

void Meet(IXMLDOMElement* element)
{
    Meet(static_cast<IXMLDOMNode*>(element));
    Watch<&IXMLDOMElement::setAttribute>(element);
}

void Meet(IXMLDOMDocument2* document)
{
    CountObject(document);
    Watch<&IXMLDOMDocument2::put_async, &IXMLDOMDocument2::put_validateOnParse,
          &IXMLDOMDocument2::put_resolveExternals, &IXMLDOMDocument2::put_preserveWhiteSpace,
          &IXMLDOMDocument2::load, &IXMLDOMDocument2::save, &IXMLDOMDocument2::get_parseError,
          &IXMLDOMDocument2::get_documentElement, &IXMLDOMDocument2::createNode,
          &IXMLDOMDocument2::createComment, &IXMLDOMDocument2::createProcessingInstruction,
          &IXMLDOMDocument2::appendChild, &IXMLDOMDocument2::putref_schemas, &IXMLDOMDocument2::validate>(
        document);
}

void Meet(IXMLDOMNamedNodeMap* map)
{
    CountObject(map);
    Watch<&IXMLDOMNamedNodeMap::getNamedItem>(map);
}

void Meet(IXMLDOMParseError* error)
{
    CountObject(error);
    Watch<&IXMLDOMParseError::get_errorCode, &IXMLDOMParseError::get_reason>(error);
}

void Meet(IXMLDOMSchemaCollection* collection)
{
    CountObject(collection);
    Watch<&IXMLDOMSchemaCollection::add>(collection);
}

HRESULT WINAPI Create(REFCLSID classId, IUnknown* outer, DWORD context, REFIID interfaceId, void** object)
{
    // Not by its name here, which leads back to this function.
    static const auto createInstance = reinterpret_cast<decltype(&CoCreateInstance)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ole32.dll"), "CoCreateInstance")));
    if (IsToFail())
    {
        *object = nullptr;
        return failure;
    }
    const Inside engine;
    const HRESULT status = createInstance(classId, outer, context, interfaceId, object);
    if (SUCCEEDED(status))
    {
        MeetOutputs(interfaceId, object);
    }
    return status;
}

} // namespace

WatchedEngine::WatchedEngine() : m_creation("CoCreateInstance", Create)
{
    held.clear();
    mostHeld = 0;
    callsToFailure = 0;
    failed = false;
}

WatchedEngine::~WatchedEngine()
{
    for (const auto& [slot, function] : originals)
    {
        StoreFunction(slot, function);
    }
    originals.clear();
}

void WatchedEngine::FailAtCall(std::size_t nth, HRESULT answer)
{
    callsToFailure = nth;
    failure = answer;
    failed = false;
}

bool WatchedEngine::hasFailed() const
{
    return failed;
}

std::size_t WatchedEngine::mostObjectsHeld() const
{
    return mostHeld;
}

} // namespace norvepa::test
