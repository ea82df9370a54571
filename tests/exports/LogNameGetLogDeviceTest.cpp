#include "LogNameScene.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

class LogNameGetLogDevice : public LogNameScene
{
protected:
    LogNameGetLogDevice() { Write(L"Pumpe", XmlContent().Text(L"LogDevice", L"MPI_1")); }

    [[nodiscard]] std::int32_t Get(const std::wstring& logName, OutputBuffer& device) const
    {
        return library.LogNameGetLogDeviceBL(logName.c_str(), device.data(), &device.length);
    }
};

TEST_F(LogNameGetLogDevice, GivesTheNameOfTheLinkedDevice)
{
    OutputBuffer device(260);

    EXPECT_EQ(Get(L"pumpe", device), PGSP_OK);

    EXPECT_EQ(device.text(), L"MPI_1");
    EXPECT_EQ(device.length, 5U);
}

TEST_F(LogNameGetLogDevice, GivesTheNameOfADeviceThatIsGoneOrNeverWas)
{
    Write(L"Pumpe", XmlContent().Text(L"LogDevice", L"Linie #3: 100% <A|B> \u00DC"));
    OutputBuffer device(260);

    EXPECT_EQ(Get(L"Pumpe", device), PGSP_OK);

    EXPECT_EQ(device.text(), L"Linie #3: 100% <A|B> \u00DC");
}

TEST_F(LogNameGetLogDevice, GivesAnEmptyNameForAnUnlinkedOne)
{
    Write(L"Pumpe", XmlContent().Text(L"LogDevice", L""));
    OutputBuffer device(1);

    EXPECT_EQ(Get(L"Pumpe", device), PGSP_OK);

    EXPECT_EQ(device.text(), L"");
    EXPECT_EQ(device.length, 0U);
}

TEST_F(LogNameGetLogDevice, NeedsOneCharacterMoreThanTheName)
{
    OutputBuffer enough(6);
    EXPECT_EQ(Get(L"Pumpe", enough), PGSP_OK);
    EXPECT_EQ(enough.text(), L"MPI_1");
    EXPECT_EQ(enough.length, 5U);

    for (const std::uint32_t capacity : {5U, 1U, 0U})
    {
        OutputBuffer device(capacity);
        EXPECT_EQ(Get(L"Pumpe", device), PGSP_ERR_BUFFER_TOO_SHORT) << capacity;
        EXPECT_TRUE(device.isUntouched()) << capacity;
        EXPECT_EQ(device.length, 5U) << capacity;
    }
}

TEST_F(LogNameGetLogDevice, NeedsACharacterForAnEmptyNameToo)
{
    Write(L"Pumpe", XmlContent().Text(L"LogDevice", L""));
    OutputBuffer device(0);

    EXPECT_EQ(Get(L"Pumpe", device), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(device.length, 0U);
}

// Unlike the read of any other value, which finds no file.
TEST_F(LogNameGetLogDevice, CanNotLoadALogNameThatIsMissing)
{
    OutputBuffer device(20);

    EXPECT_EQ(Get(L"Presse", device), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(Read(L"Presse", L"LogDevice"), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_TRUE(device.isUntouched());
    EXPECT_EQ(device.length, 20U);
}

TEST_F(LogNameGetLogDevice, CanNotLoadALogNameThatAnotherHoldsWithoutSharing)
{
    const HANDLE lock = CreateFileW(roots.logName(L"Pumpe").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    OutputBuffer device(20);

    EXPECT_EQ(Get(L"Pumpe", device), PGSP_ERR_CANT_LOAD_XML_FILE);

    CloseHandle(lock);
}

TEST_F(LogNameGetLogDevice, FindsNoneInALogNameThatWasNeverLinked)
{
    Write(L"Pumpe", XmlContent().Text(L"Station", L"Halle 2"));
    OutputBuffer device(20);

    EXPECT_EQ(Get(L"Pumpe", device), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_TRUE(device.isUntouched());
    EXPECT_EQ(device.length, 20U);
}

TEST_F(LogNameGetLogDevice, LooksIntoNoOtherSection)
{
    WriteBytes(roots.logName(L"Pumpe"),
               XmlFile(L"LogName", {{L"LogDevice", L"MPI_1"}},
                       XmlContent()
                           .Element(L"LocalSettings", XmlContent().Text(L"LogDevice", L"MPI_1"))
                           .Element(L"Parameters", XmlContent())));
    OutputBuffer device(20);

    EXPECT_EQ(Get(L"Pumpe", device), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(LogNameGetLogDevice, TakesAPathOf259CharactersAndNoMore)
{
    OutputBuffer device(20);

    EXPECT_EQ(Get(NameForPathOf(259), device), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(Get(NameForPathOf(260), device), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(device.isUntouched());
    EXPECT_EQ(device.length, 20U);
}

} // namespace
} // namespace norvepa::test
