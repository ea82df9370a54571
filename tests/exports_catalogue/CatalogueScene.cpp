#include "CatalogueScene.h"

#include "support/ShellFolders.h"

#include <stdexcept>

namespace norvepa::test
{

namespace
{

constexpr std::uint32_t RoomForAnyList = 2000;

std::wstring CatalogueFile(const StoreRoots& roots, const std::wstring& folder, const std::wstring& fileName)
{
    return roots.program() + L"\\meta\\" + folder + L"\\" + fileName + L".xml";
}

Strings StringsOf(std::int32_t result, const ListBuffer& buffer)
{
    if (result != PGSP_OK)
    {
        throw std::runtime_error("no list: " + std::to_string(result));
    }
    EXPECT_EQ(buffer.length, buffer.written().size());
    return buffer.strings();
}

XmlContent Slot(std::wstring_view value)
{
    return XmlContent().Int(L"slot", value);
}

XmlContent BusProfiles()
{
    const XmlContent rates = XmlContent()
                                 .ParamSection(L"9600", Slot(L"9").Text(L"(default)", L"of the baud rate"))
                                 .ParamSection(L"19200", Slot(L"19"));
    const XmlContent ratesOfUser = XmlContent().Element(L"ValueCollection", rates);
    return XmlContent()
        .Element(L"Value", L"0/DP")
        .Element(L"Value", L"3/\u00DCber")
        .ParamSection(L"0", Slot(L"100"))
        .ParamSection(L"1", Slot(L"101"))
        .ParamSection(L"2", Slot(L"102"))
        .ParamSection(
            L"3", Slot(L"103").Text(L"(default)", L"of the profile").ParamSection(L"baudrate", ratesOfUser));
}

} // namespace

CatalogueScene::~CatalogueScene()
{
    library.NorvepaBl64x_deinit(); // a folder that is watched can't be removed
}

void CatalogueScene::WriteBoard(const std::wstring& name, const XmlContent& content) const
{
    WriteBoardAs(BoardPrefix + name, content);
}

void CatalogueScene::WriteProtocol(const std::wstring& name, const XmlContent& content) const
{
    WriteProtocolAs(ProtocolPrefix + name, content);
}

void CatalogueScene::WriteBoardAs(const std::wstring& fileName, const XmlContent& content) const
{
    WriteBytes(CatalogueFile(roots, L"Boards", fileName), BoardFile(content));
}

void CatalogueScene::WriteProtocolAs(const std::wstring& fileName, const XmlContent& content) const
{
    WriteBytes(CatalogueFile(roots, L"Protocols", fileName), ProtocolFile(content));
}

void CatalogueScene::TakeProgramFolderAway() const
{
    DeleteMachineValue(LocationsKey, L"Corvane_Oam");
    SetCommonProgramFiles(roots.folder().path());
}

void CatalogueScene::TakeDataFolderAway() const
{
    DeleteMachineValue(LocationsKey, L"Corvane_Oam_Data");
    SetCommonApplicationData(roots.folder().path());
}

std::wstring CatalogueScene::BoardPair(const std::wstring& board, std::uint32_t index) const
{
    return PairOf([&](wchar_t* name, std::uint32_t* nameLength, wchar_t* value, std::uint32_t* valueLength) {
        return library.PGSP_BoardGetEnumValueBL(board.c_str(), index, name, nameLength, value, valueLength);
    });
}

std::wstring CatalogueScene::BoardValue(const std::wstring& deviceId, const std::wstring& parameter) const
{
    return TextOf([&](wchar_t* value, std::uint32_t* length) {
        return library.PGSP_BoardGetValueBL(deviceId.c_str(), parameter.c_str(), value, length);
    });
}

std::wstring CatalogueScene::BoardValueRaw(const std::wstring& deviceId, const wchar_t* path,
                                           const std::wstring& parameter) const
{
    return TextOf([&](wchar_t* value, std::uint32_t* length) {
        return library.PGSP_BoardGetValueRawBL(deviceId.c_str(), path, parameter.c_str(), value, length);
    });
}

std::int32_t CatalogueScene::BoardValues(const std::wstring& deviceId, const Strings& names,
                                         ListBuffer& values) const
{
    const std::wstring list = PackedWithoutEnd(names);
    return library.PGSP_BoardGetValueListBL(deviceId.c_str(), list.c_str(),
                                            static_cast<std::uint32_t>(list.size()), values.data(),
                                            &values.length);
}

std::int32_t CatalogueScene::BoardCollection(const std::wstring& collection, const std::wstring& deviceId,
                                             ListBuffer& values) const
{
    return library.PGSP_BoardGetValueCollectionBL(collection.c_str(), deviceId.c_str(), values.data(),
                                                  &values.length);
}

Strings CatalogueScene::BoardValues(const std::wstring& deviceId, const Strings& names) const
{
    ListBuffer values(RoomForAnyList);
    return StringsOf(BoardValues(deviceId, names, values), values);
}

Strings CatalogueScene::BoardCollection(const std::wstring& collection, const std::wstring& deviceId) const
{
    ListBuffer values(RoomForAnyList);
    return StringsOf(BoardCollection(collection, deviceId, values), values);
}

std::wstring CatalogueScene::ProtocolPair(const std::wstring& protocol, const Question& question,
                                          std::uint32_t index) const
{
    return PairOf([&](wchar_t* name, std::uint32_t* nameLength, wchar_t* value, std::uint32_t* valueLength) {
        return library.PGSP_ProtocolGetEnumValueBL(protocol.c_str(), question.parameter, question.value,
                                                   question.subParameter, question.subValue, index, name,
                                                   nameLength, value, valueLength);
    });
}

std::wstring CatalogueScene::Busprofile(const std::wstring& protocol, std::uint32_t index) const
{
    return TextOf([&](wchar_t* profile, std::uint32_t* length) {
        return library.PGSP_ProtocolGetEnumBusprofilesBL(protocol.c_str(), index, profile, length);
    });
}

std::wstring CatalogueScene::Baudrate(const std::wstring& protocol, const wchar_t* profile,
                                      std::uint32_t index) const
{
    return TextOf([&](wchar_t* baudrate, std::uint32_t* length) {
        return library.PGSP_ProtocolGetEnumBaudrateBL(protocol.c_str(), profile, index, baudrate, length);
    });
}

std::wstring CatalogueScene::ProtocolValue(const std::wstring& protocol, const Question& question,
                                           const wchar_t* attribute) const
{
    return TextOf([&](wchar_t* text, std::uint32_t* length) {
        return library.PGSP_ProtocolGetValueBL(protocol.c_str(), question.parameter, question.value,
                                               question.subParameter, question.subValue, attribute, text,
                                               length);
    });
}

std::wstring CatalogueScene::ProtocolValueRaw(const std::wstring& protocol, const wchar_t* path,
                                              const wchar_t* attribute) const
{
    return TextOf([&](wchar_t* value, std::uint32_t* length) {
        return library.PGSP_ProtocolGetValueRawBL(protocol.c_str(), path, attribute, value, length);
    });
}

std::wstring CatalogueScene::NameWithoutPrefix(const std::wstring& folder, std::uint32_t index) const
{
    return TextOf([&](wchar_t* name, std::uint32_t* length) {
        return library.PGSP_TemplateGetEnumNoPrefixBL(folder.c_str(), index, name, length);
    });
}

XmlContent BusProtocol()
{
    const XmlContent rates = XmlContent()
                                 .ParamSection(L"187500", XmlContent().Int(L"gap", L"1"))
                                 .ParamSection(L"1500000", XmlContent().Int(L"gap", L"2"));
    const XmlContent busparam = XmlContent()
                                    .Element(L"type", L"int")
                                    .Element(L"default", L"1")
                                    .Element(L"ValueCollection", BusProfiles());
    const XmlContent baudrate = XmlContent()
                                    .Element(L"default", L"187500")
                                    .Element(L"max", L"1500000")
                                    .Element(L"ValueCollection", rates);
    return XmlContent().Element(
        L"Constraints", XmlContent().ParamSection(L"busparam", busparam).ParamSection(L"baudrate", baudrate));
}

} // namespace norvepa::test
