#include "DriverReadScene.h"

#include <stdexcept>

namespace norvepa::test
{

namespace
{

constexpr std::string_view OpenSchema =
    "<?xml version='1.0' encoding='UTF-8'?>\r\n"
    "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' elementFormDefault='qualified'"
    " targetNamespace='http://www.marvolt.example/Automation/Corvane.Device.Driver/LogDevice'>\r\n"
    "<xs:element name='LogDevice'><xs:complexType>"
    "<xs:sequence><xs:any processContents='skip' minOccurs='0' maxOccurs='unbounded'/></xs:sequence>"
    "<xs:anyAttribute processContents='skip'/>"
    "</xs:complexType></xs:element>\r\n"
    "</xs:schema>";

} // namespace

DriverReadScene::DriverReadScene()
{
    WriteBytes(schemaFile(), OpenSchema);
}

std::wstring DriverReadScene::schemaFile() const
{
    return roots.program() + L"\\Schemes\\Corvane.Device.Driver.Logdevice.xsd";
}

void DriverReadScene::Write(const XmlContent& content, const std::wstring& fileName) const
{
    store.WriteDevice(fileName, content);
}

ReceivedRecords DriverReadScene::Read(const std::wstring& name) const
{
    HandedOut out;
    const std::int32_t result = library.norvDriverReadLogDevice(name.c_str(), &out.block, &out.length);
    if (result != PGSP_OK)
    {
        throw std::runtime_error("the read is refused: " + std::to_string(result));
    }
    return TakeOver(out.block, out.length);
}

std::int32_t DriverReadScene::ResultOf(const std::wstring& name) const
{
    HandedOut out;
    const std::int32_t result = library.norvDriverReadLogDevice(name.c_str(), &out.block, &out.length);
    EXPECT_TRUE(out.isUntouched());
    return result;
}

XmlContent Holding(std::wstring_view value)
{
    return XmlContent().Element(L"Section", XmlContent().Text(L"n", value)).Load({L"Section"});
}

ReceivedRecords Held(std::wstring_view value)
{
    return {TextRecord(L"n", std::wstring(value))};
}

} // namespace norvepa::test
