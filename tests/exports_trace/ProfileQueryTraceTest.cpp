#include "CatalogueTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

class ProfileQueryTrace : public CatalogueTraceScene
{
protected:
    ProfileQueryTrace()
    {
        const XmlContent described = XmlContent().Element(L"ParamDesc", L"user");
        const XmlContent values = XmlContent().Element(L"Value", L"3/User").ParamSection(L"3", described);
        WriteBytes(roots.protocol(L"Y"),
                   ProtocolFile(XmlContent().Element(
                       L"Constraints", XmlContent().ParamSection(
                                           L"busparam", XmlContent().Element(L"ValueCollection", values)))));
    }

    [[nodiscard]] std::int32_t Exists(const wchar_t* parameter, const wchar_t* value) const
    {
        return library().PGSP_ProfileCollectionExistsBL(L"Y", parameter, value);
    }

    [[nodiscard]] std::int32_t Description(const wchar_t* path)
    {
        return library().PGSP_GetParamDescBL(L"Y", path, buffer, &length);
    }
};

TEST_F(ProfileQueryTrace, OfACollectionIsArgumentsAndResult)
{
    Load();

    EXPECT_EQ(Exists(L"busparam", L"3"), PGSP_OK);
    EXPECT_EQ(Exists(L"busparam\\3\\baudrate", L"9600"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(LinesOf("PGSP_ProfileCollectionExistsBL"),
                ElementsAre("entry: >> Protocol = Y, Parameter = busparam, Value = 3",
                            "exit: << return lRet = 0",
                            "entry: >> Protocol = Y, Parameter = busparam\\3\\baudrate, Value = 9600",
                            "exit: << return lRet = 8513"));
}

TEST_F(ProfileQueryTrace, OfADescriptionTellsIt)
{
    Load();

    EXPECT_EQ(Description(L"busparam\\3"), PGSP_OK);
    EXPECT_EQ(Description(L"busparam\\4"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(LinesOf("PGSP_GetParamDescBL"),
                ElementsAre("entry: >> Profile = Y, ParamValue = busparam\\3",
                            "information: ParamDesc = user, dwParamDesc = 4", "exit: << return lRet = 0",
                            "entry: >> Profile = Y, ParamValue = busparam\\4",
                            "exit: << return lRet = 8513"));
}

TEST_F(ProfileQueryTrace, OfBadArgumentsBeginsWithTheEntry)
{
    Load();

    EXPECT_EQ(Exists(L"", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Description(nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("PGSP_ProfileCollectionExistsBL"),
                ElementsAre("entry: >> Protocol = Y, Parameter = , Value = ", Refusal));
    EXPECT_THAT(LinesOf("PGSP_GetParamDescBL"), ElementsAre("entry: >> Profile = Y, ParamValue = ", Refusal));
}

TEST_F(ProfileQueryTrace, OfAMissingProgramFolderNamesIt)
{
    TakeProgramFolderAway();
    Load();

    EXPECT_EQ(Exists(L"a", L"1"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Description(L"a\\1"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(
        LinesOf("PGSP_ProfileCollectionExistsBL"),
        ElementsAre("entry: >> Protocol = Y, Parameter = a, Value = 1", NoProgramFolder, FolderNotFound));
    EXPECT_THAT(LinesOf("PGSP_GetParamDescBL"),
                ElementsAre("entry: >> Profile = Y, ParamValue = a\\1", NoProgramFolder, FolderNotFound));
}

} // namespace
} // namespace norvepa::test
