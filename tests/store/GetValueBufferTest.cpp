#include "store/ReadScene.h"
#include "support/OutputBuffer.h"

namespace norvepa::test
{
namespace
{

class GetValueBufferTest : public ReadScene
{
protected:
    const std::wstring m_file = File(LogDeviceFile(XmlContent().Element(
        L"S", XmlContent().Text(L"station", L"Größe").Text(L"empty", L"").Text(L"", L"nameless"))));
};

TEST_F(GetValueBufferTest, CopiesTheValueAndTellsItsLength)
{
    OutputBuffer buffer(100);

    EXPECT_EQ(NorvXMLGetValueBuffer(m_file.c_str(), L"S", L"STATION", buffer.data(), &buffer.length),
              PGSP_OK);

    EXPECT_EQ(buffer.text(), L"Größe");
    EXPECT_EQ(buffer.length, 5u);
}

TEST_F(GetValueBufferTest, NeedsRoomForTheTerminator)
{
    OutputBuffer tooShort(5);
    OutputBuffer justEnough(6);

    EXPECT_EQ(NorvXMLGetValueBuffer(m_file.c_str(), L"S", L"station", tooShort.data(), &tooShort.length),
              PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(NorvXMLGetValueBuffer(m_file.c_str(), L"S", L"station", justEnough.data(), &justEnough.length),
              PGSP_OK);

    EXPECT_TRUE(tooShort.isUntouched());
    EXPECT_EQ(tooShort.length, 5u);
    EXPECT_EQ(justEnough.text(), L"Größe");
}

TEST_F(GetValueBufferTest, ACapacityOfZeroIsTooShortAlsoForTheEmptyValue)
{
    OutputBuffer none(0);
    OutputBuffer one(1);

    EXPECT_EQ(NorvXMLGetValueBuffer(m_file.c_str(), L"S", L"empty", none.data(), &none.length),
              PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(NorvXMLGetValueBuffer(m_file.c_str(), L"S", L"empty", one.data(), &one.length), PGSP_OK);

    EXPECT_EQ(none.length, 0u);
    EXPECT_EQ(one.text(), L"");
    EXPECT_EQ(one.length, 0u);
}

TEST_F(GetValueBufferTest, BufferAndLengthStayWhenTheValueIsNotFound)
{
    OutputBuffer buffer(100);

    EXPECT_EQ(NorvXMLGetValueBuffer(m_file.c_str(), L"S", L"other", buffer.data(), &buffer.length),
              PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, 100u);
}

TEST_F(GetValueBufferTest, BufferAndLengthStayWhenTheFileCanNotBeOpened)
{
    OutputBuffer buffer(100);
    const std::wstring missing = folder() / L"missing";

    EXPECT_EQ(NorvXMLGetValueBuffer(missing.c_str(), L"S", L"station", buffer.data(), &buffer.length),
              PGSP_ERR_CANT_LOAD_XML_FILE);

    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, 100u);
}

TEST_F(GetValueBufferTest, BufferAndLengthStayWhenThePathIsTooLong)
{
    OutputBuffer buffer(100);
    const std::wstring path(260, L'x');

    EXPECT_EQ(NorvXMLGetValueBuffer(path.c_str(), L"S", L"station", buffer.data(), &buffer.length),
              PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, 100u);
}

TEST_F(GetValueBufferTest, RefusesWhatIsMissing)
{
    OutputBuffer buffer(100);

    EXPECT_EQ(NorvXMLGetValueBuffer(nullptr, L"S", L"station", buffer.data(), &buffer.length),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLGetValueBuffer(L"", L"S", L"station", buffer.data(), &buffer.length),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLGetValueBuffer(m_file.c_str(), L"S", nullptr, buffer.data(), &buffer.length),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLGetValueBuffer(m_file.c_str(), L"S", L"station", nullptr, &buffer.length),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLGetValueBuffer(m_file.c_str(), L"S", L"station", buffer.data(), nullptr),
              PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, 100u);
}

TEST_F(GetValueBufferTest, TheEmptyParameterAndNoSectionAreNotRefused)
{
    OutputBuffer nameless(100);
    OutputBuffer spare(100);

    EXPECT_EQ(NorvXMLGetValueBuffer(m_file.c_str(), L"S", L"", nameless.data(), &nameless.length), PGSP_OK);
    EXPECT_EQ(NorvXMLGetValueBuffer(m_file.c_str(), nullptr, L"station", spare.data(), &spare.length),
              PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_EQ(nameless.text(), L"nameless");
}

} // namespace
} // namespace norvepa::test
