#include "ParameterDataScene.h"

#include "support/Answers.h"
#include "support/XmlMeaning.h"

namespace norvepa::test
{

namespace
{

constexpr std::uint32_t Room = 300;

} // namespace

std::wstring ParameterDataScene::inData(std::wstring_view path) const
{
    return (roots.data() + L"\\").append(path);
}

std::wstring ParameterDataScene::inProgram(std::wstring_view path) const
{
    return (roots.program() + L"\\").append(path);
}

void ParameterDataScene::WriteData(const std::wstring& path, const XmlContent& content)
{
    WriteBytes(path + L".xml", DataFile(content));
}

void ParameterDataScene::ExpectOurs(const XmlContent& content) const
{
    EXPECT_EQ(MeaningOfFile(ourFile() + L".xml"), MeaningOf(DataFile(content)));
}

std::int32_t ParameterDataScene::Get(const wchar_t* parameter, OutputBuffer& value) const
{
    return library.PGSP_GetParameterMetaDataBL(L"data", nullptr, L"werte", parameter, value.data(),
                                               &value.length);
}

std::int32_t ParameterDataScene::Enum(std::uint32_t index, OutputBuffer& name, OutputBuffer& value) const
{
    return library.PGSP_EnumParameterMetaDataBL(L"data", nullptr, L"werte", index, name.data(), &name.length,
                                                value.data(), &value.length);
}

std::int32_t ParameterDataScene::SetData(const wchar_t* parameter, const wchar_t* value,
                                         const wchar_t* type) const
{
    return library.PGSP_SetParameterDataBL(nullptr, L"werte", parameter, value, type);
}

std::int32_t ParameterDataScene::DelData(const wchar_t* parameter) const
{
    return library.PGSP_DelParameterDataBL(nullptr, L"werte", parameter);
}

std::wstring ParameterDataScene::Value(const wchar_t* folder, const wchar_t* subfolder, const wchar_t* file,
                                       const wchar_t* parameter) const
{
    OutputBuffer value(Room);
    const std::int32_t result =
        library.PGSP_GetParameterMetaDataBL(folder, subfolder, file, parameter, value.data(), &value.length);
    if (result != PGSP_OK)
    {
        ExpectEmptied(value, Room);
        return Failed(result);
    }
    EXPECT_EQ(value.length, value.text().size());
    return value.text();
}

std::wstring ParameterDataScene::OurValue(const wchar_t* parameter) const
{
    return Value(L"data", nullptr, L"werte", parameter);
}

std::wstring ParameterDataScene::Item(const wchar_t* folder, const wchar_t* subfolder, const wchar_t* file,
                                      std::uint32_t index) const
{
    OutputBuffer name(Room);
    OutputBuffer value(Room);
    const std::int32_t result = library.PGSP_EnumParameterMetaDataBL(
        folder, subfolder, file, index, name.data(), &name.length, value.data(), &value.length);
    if (result != PGSP_OK)
    {
        ExpectUntouched(name, Room);
        ExpectEmptied(value, Room);
        return Failed(result);
    }
    EXPECT_EQ(name.length, name.text().size());
    EXPECT_EQ(value.length, value.text().size());
    return name.text() + L"=" + value.text();
}

std::wstring ParameterDataScene::OurItem(std::uint32_t index) const
{
    return Item(L"data", nullptr, L"werte", index);
}

void ParameterDataScene::ExpectSetDataChangesNothing(const wchar_t* parameter, const wchar_t* value,
                                                     std::int32_t result, const wchar_t* type) const
{
    const std::string before = OurBytes();

    EXPECT_EQ(SetData(parameter, value, type), result);

    EXPECT_EQ(OurBytes(), before);
}

void ParameterDataScene::ExpectDelDataChangesNothing(const wchar_t* parameter, std::int32_t result) const
{
    const std::string before = OurBytes();

    EXPECT_EQ(DelData(parameter), result);

    EXPECT_EQ(OurBytes(), before);
}

void ParameterDataScene::ExpectAllAnswer(std::int32_t result) const
{
    EXPECT_EQ(OurValue(L"Druck"), Failed(result));
    EXPECT_EQ(OurItem(0), Failed(result));
    EXPECT_EQ(SetData(L"Druck", L"7"), result);
    EXPECT_EQ(DelData(L"Druck"), result);
}

void ExpectEmptied(OutputBuffer buffer, std::uint32_t length)
{
    EXPECT_EQ(*buffer.data(), L'\0');
    *buffer.data() = *OutputBuffer(1).data();
    ExpectUntouched(buffer, length);
}

void ExpectUntouched(const OutputBuffer& buffer, std::uint32_t length)
{
    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, length);
}

} // namespace norvepa::test
