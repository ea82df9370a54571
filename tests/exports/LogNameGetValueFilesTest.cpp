#include "support/LogNameCalls.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

class LogNameGetValueFiles : public LogNames
{
protected:
    void WriteDocument(std::string_view bytes) const { WriteBytes(roots.logName(L"Pumpe"), bytes); }
};

TEST_F(LogNameGetValueFiles, ThatAreMissingAreNotFound)
{
    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Read(L"no such folder\\Pumpe", L"Station"), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(LogNameGetValueFiles, ThatAnotherHoldsWithoutSharingReadAsMissing)
{
    Write(L"Pumpe", XmlContent().Text(L"Station", L"Halle 2"));
    const HANDLE lock = CreateFileW(roots.logName(L"Pumpe").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);

    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_ERR_FILE_NOT_FOUND);

    CloseHandle(lock);
    EXPECT_EQ(Value(L"Pumpe", L"Station"), L"Halle 2");
}

TEST_F(LogNameGetValueFiles, ThatAreFoldersReadAsMissing)
{
    MakeFolders(roots.logName(L"Pumpe"));

    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(LogNameGetValueFiles, ThatAreEmptyHoldNoParameter)
{
    WriteDocument("");

    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(LogNameGetValueFiles, ThatAreNoXmlHoldNoParameter)
{
    WriteDocument("Station=Halle 2\r\n");

    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(LogNameGetValueFiles, HoldNoParameterBehindAWrongEndTag)
{
    Write(L"Pumpe", XmlContent().Raw("<Broken></Wrong>").Text(L"Station", L"Halle 2"));

    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(LogNameGetValueFiles, AnswerAheadOfAWrongEndTag)
{
    Write(L"Pumpe", XmlContent().Text(L"Station", L"Halle 2").Raw("<Broken></Wrong>"));

    EXPECT_EQ(Value(L"Pumpe", L"Station"), L"Halle 2");
}

TEST_F(LogNameGetValueFiles, WithADoctypeHoldNoParameter)
{
    WriteDocument("<?xml version='1.0'?><!DOCTYPE LogName [<!ENTITY e 'x'>]>"
                  "<LogName><Parameters><Parameter><Name>Station</Name><Value>Halle 2</Value></Parameter>"
                  "</Parameters></LogName>");

    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(LogNameGetValueFiles, AreReadAnewAtEachCall)
{
    Write(L"Pumpe", XmlContent().Text(L"Station", L"before"));
    EXPECT_EQ(Value(L"Pumpe", L"Station"), L"before");

    Write(L"Pumpe", XmlContent().Text(L"Station", L"after"));
    EXPECT_EQ(Value(L"Pumpe", L"Station"), L"after");
}

TEST_F(LogNameGetValueFiles, AreNotHeldOpenAfterTheCall)
{
    Write(L"Pumpe", XmlContent().Text(L"Station", L"Halle 2"));
    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_OK);
    EXPECT_EQ(Read(L"Pumpe", L"gone"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_TRUE(DeleteFileW(roots.logName(L"Pumpe").c_str()));
    EXPECT_FALSE(Exists(roots.logName(L"Pumpe")));
}

TEST_F(LogNameGetValueFiles, OfTheSampleStoreAnswer)
{
    roots.FillWithSampleStore();

    EXPECT_EQ(Value(L"Leitwarte", L"Station"), L"Bedienplatz 1");
    EXPECT_EQ(Value(L"Leitwarte", L""), L"\u00DCbersicht Auental");
    EXPECT_EQ(Value(L"Linie #3: 100% <A|B>", L"enable_delete"), L"true");
}

} // namespace
} // namespace norvepa::test
