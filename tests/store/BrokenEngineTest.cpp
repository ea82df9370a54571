#include "store/BrokenEngine.h"

#include "store/CommitScene.h"
#include "store/EveryWrite.h"
#include "store/WithoutComScene.h"

#include <objbase.h>

namespace norvepa::test
{
namespace
{

class BrokenEngineWrites : public WriteScene, public testing::WithParamInterface<Write>
{
};

INSTANTIATE_TEST_SUITE_P(, BrokenEngineWrites, testing::ValuesIn(EveryWrite()), NameOf);

TEST_P(BrokenEngineWrites, AreRefusedAndLeaveTheFileAlone)
{
    GivenFile(LogDeviceFile(WritableContent()));
    const std::string before = Bytes();
    {
        const BrokenEngine engine({REGDB_E_CLASSNOTREG});

        EXPECT_EQ(GetParam().call(path().c_str()), PGSP_ERR_CANT_CREATE_XML_ENGINE);

        EXPECT_EQ(engine.asked(), 1);
    }
    EXPECT_EQ(Bytes(), before);
}

using BrokenEngineTest = WithoutComScene;

TEST_F(BrokenEngineTest, ASecondRefusalTakesComAlongAgain)
{
    GivenFile(LogDeviceFile(WritableContent()));

    OfBoth([](const auto& set) {
        const BrokenEngine engine({CO_E_NOTINITIALIZED, REGDB_E_CLASSNOTREG});
        EXPECT_EQ(set(), PGSP_ERR_CANT_CREATE_XML_ENGINE);
        EXPECT_EQ(engine.asked(), 2);
    });
}

TEST_F(BrokenEngineTest, NoMoreThanTwoAttemptsAreMade)
{
    GivenFile(LogDeviceFile(WritableContent()));

    OfBoth([](const auto& set) {
        const BrokenEngine engine({CO_E_NOTINITIALIZED});
        EXPECT_EQ(set(), PGSP_ERR_CANT_CREATE_XML_ENGINE);
        EXPECT_EQ(engine.asked(), 2);
    });
}

TEST_F(BrokenEngineTest, ARefusalOfAnotherKindBringsNoCom)
{
    GivenFile(LogDeviceFile(WritableContent()));

    OfBoth([](const auto& set) {
        const BrokenEngine engine({REGDB_E_CLASSNOTREG});
        EXPECT_EQ(set(), PGSP_ERR_CANT_CREATE_XML_ENGINE);
        EXPECT_EQ(engine.asked(), 1);
    });
}

TEST_F(BrokenEngineTest, ANewFileStaysBehindEmpty)
{
    const BrokenEngine engine({REGDB_E_CLASSNOTREG});

    EXPECT_EQ(NorvXMLCreateFile(path().c_str(), L"nam"), PGSP_ERR_CANT_CREATE_XML_ENGINE);

    EXPECT_EQ(engine.asked(), 1);
    EXPECT_EQ(Bytes(), "");
}

// A validation asks for the schema's document, the file's and the collection, each in its turn.
class BrokenEngineValidates : public CommitScene
{
protected:
    [[nodiscard]] Result ValidateWith(int objects) const
    {
        const BrokenEngine engine({REGDB_E_CLASSNOTREG}, objects);
        return Validate();
    }
};

TEST_F(BrokenEngineValidates, NothingWithoutOneOfItsThreeObjects)
{
    WriteBytes(real(), ValidLogName());

    EXPECT_EQ(ValidateWith(0), PGSP_ERR_CANT_CREATE_XML_ENGINE);
    EXPECT_EQ(ValidateWith(1), PGSP_ERR_CANT_CREATE_XML_ENGINE);
    EXPECT_EQ(ValidateWith(2), PGSP_ERR_CANT_CREATE_XML_ENGINE);
    EXPECT_EQ(ValidateWith(3), PGSP_OK);
}

TEST_F(BrokenEngineValidates, NoFileThatItHasNoDocumentFor)
{
    EXPECT_EQ(ValidateWith(1), PGSP_ERR_CANT_CREATE_XML_ENGINE);
    EXPECT_EQ(ValidateWith(2), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(BrokenEngineValidates, AFileThatLoadsBeforeItNeedsACollection)
{
    WriteBytes(real(), "<LogName></logname>");

    EXPECT_EQ(ValidateWith(2), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(BrokenEngineValidates, AndACommitRemovesItsTemporaryFile)
{
    WriteBytes(real(), "real");
    WriteBytes(temporary(), ValidLogName());
    const BrokenEngine engine({REGDB_E_CLASSNOTREG}, 2);

    EXPECT_EQ(Commit(), PGSP_ERR_CANT_CREATE_XML_ENGINE);

    EXPECT_EQ(ReadBytes(real()), "real");
    EXPECT_FALSE(Exists(temporary()));
}

} // namespace
} // namespace norvepa::test
