#include "Kinds.h"

#include "Questions.h"
#include "support/Answers.h"

#include <algorithm>
#include <ostream>
#include <stdexcept>

namespace norvepa::test
{

namespace
{

std::wstring LogName(const StoreRoots& roots, const std::wstring& object)
{
    return roots.logName(object);
}

std::wstring LogDevice(const StoreRoots& roots, const std::wstring& object)
{
    return roots.logDevice(object);
}

std::wstring Board(const StoreRoots& roots, const std::wstring& object)
{
    return roots.board(object);
}

std::wstring Protocol(const StoreRoots& roots, const std::wstring& object)
{
    return roots.protocol(object);
}

std::wstring Template(const StoreRoots& roots, const std::wstring& object)
{
    return roots.deviceTemplate(object);
}

XmlContent Section(const wchar_t* section, const std::wstring& value)
{
    return XmlContent().Element(section, XmlContent().Text(AskedParameter, value));
}

XmlContent Ndi(const std::wstring& hidden)
{
    return XmlContent().Element(L"Ndi", XmlContent().Bool(L"hidden", hidden));
}

// Enumerations and the index take their time with each log device: those not looked for there are hidden.
std::string HiddenDevice(XmlContent content, std::wstring_view deviceId = OurBoard)
{
    return LogDeviceFile(content.Raw(Ndi(L"true").utf8()), deviceId);
}

XmlContent Default(const std::wstring& value)
{
    return Catalogue().Parameter(AskedParameter, {{L"default", value}}).content();
}

std::string WithValue(const std::wstring&, const std::wstring& value)
{
    return HiddenDevice(Section(L"LocalSettings", value));
}

std::string WithIdentity(const std::wstring&, const std::wstring& value)
{
    return HiddenDevice({}, value);
}

std::string WithSubdevice(const std::wstring&, const std::wstring& value)
{
    return HiddenDevice(XmlContent().Subdevice(AskedSubdevice, XmlContent().Text(AskedParameter, value)));
}

std::string WithType(const std::wstring& object, const std::wstring& value)
{
    return LogDeviceFile({}, OurBoard, TypeOf(object, value));
}

std::string WithHidden(const std::wstring& object, const std::wstring& value)
{
    return LogDeviceFile(Ndi(value), OurBoard, object);
}

std::string WithUnit(const std::wstring& object, const std::wstring& value)
{
    return LogDeviceFile(XmlContent().Element(L"DeviceHeader", XmlContent().Int(L"Unit", value)), object);
}

std::string NameWithValue(const std::wstring&, const std::wstring& value)
{
    return LogNameFile(XmlContent().Text(AskedParameter, value));
}

std::string NameWithHidden(const std::wstring&, const std::wstring& value)
{
    return LogNameFile(XmlContent().Bool(L"hidden", value));
}

std::string BoardWithValue(const std::wstring& object, const std::wstring& value)
{
    return BoardFile(Section(L"Install", value), object);
}

std::string BoardWithIdentity(const std::wstring&, const std::wstring& value)
{
    return BoardFile(Default(L"Halle"), value);
}

std::string BoardWithWord(const std::wstring& object, const std::wstring& value)
{
    return BoardFile(Default(value), object);
}

std::string ProtocolWithWord(const std::wstring& object, const std::wstring& value)
{
    return ProtocolFile(Default(value), object);
}

} // namespace

const std::vector<Kind>& Kinds()
{
    const std::wstring noDevice = Failed(PGSP_ERR_LOG_DEVICE_NOT_EXISTS);
    const std::wstring noName = Failed(PGSP_ERR_FILE_NOT_FOUND);
    const std::wstring noFile = Failed(PGSP_ERR_CANT_LOAD_XML_FILE);
    const std::wstring noValue = Failed(PGSP_ERR_PARAM_NOT_FOUND);
    const Value one{L"Halle 1", L"Halle 1"};
    const Value two{L"Halle 2", L"Halle 2"};
    const Value number1{L"1", L"1"};
    const Value number2{L"2", L"2"};
    const Value hidden{L"true", NotListed};
    const Value shown{L"trug", Listed};

    static const std::vector<Kind> kinds{
        {"DeviceValue", LogDevice, WithValue, "<Value>", AskDeviceValue, one, two, noDevice, noDevice,
         noValue},
        {"DeviceId", LogDevice, WithIdentity, " DeviceID=", AskDeviceId, one, two, noDevice, noDevice,
         noValue},
        {"SubdeviceValue", LogDevice, WithSubdevice, "<Value>", AskSubdeviceValue, one, two, noDevice,
         noDevice, noValue},
        {"DeviceType", LogDevice, WithType, " CP_TYPE=", AskDeviceType, number1, number2, NotListed,
         number1.answer, NotListed},
        {"DeviceHidden", LogDevice, WithHidden, " CP_TYPE=", AskDeviceShownByType, shown, hidden, NotListed,
         shown.answer, NotListed},
        {"Unit", LogDevice, WithUnit, "<Value>", AskUnit, number1, number2, NotListed, number1.answer,
         NotListed},
        {"NameValue", LogName, NameWithValue, "<Value>", AskNameValue, one, two, noName, noName, noValue},
        {"NameHidden", LogName, NameWithHidden, "<Value>", AskNameShown, hidden, shown, NotListed,
         hidden.answer, Listed},
        {"BoardValue", Board, BoardWithValue, "<Value>", AskBoardValue, one, two, noFile, noFile, noValue},
        {"BoardId", Board, BoardWithIdentity, " DeviceID=", AskBoardId, one, two, noFile, noFile, noValue},
        {"BoardWord", Board, BoardWithWord, "<default>", AskBoardWord, one, two, noFile, noFile, noValue},
        {"ProtocolWord", Protocol, ProtocolWithWord, "<default>", AskProtocolWord, one, two, noFile, noFile,
         noValue},
        {"TemplateValue", Template, WithValue, "<Value>", AskTemplateValue, one, two, noFile, noFile,
         noValue},
    };
    return kinds;
}

std::vector<Kind> KindsAskedAtOnce()
{
    std::vector<Kind> kinds = Kinds();
    std::erase_if(kinds, [](const Kind& kind) { return kind.ask == AskUnit; });
    return kinds;
}

const Kind& KindOf(const std::string& test)
{
    const auto found = std::find_if(Kinds().begin(), Kinds().end(), [&](const Kind& kind) {
        return test.ends_with(std::string("/") + kind.name);
    });
    if (found == Kinds().end())
    {
        throw std::invalid_argument(test + " is about no kind");
    }
    return *found;
}

void PrintTo(const Kind& kind, std::ostream* out)
{
    *out << kind.name;
}

} // namespace norvepa::test
