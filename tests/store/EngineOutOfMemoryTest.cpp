#include "store/BrokenEngine.h"
#include "store/CommitScene.h"
#include "store/EveryWrite.h"
#include "store/WithoutComScene.h"
#include "support/ImportHook.h"
#include "support/WatchedEngine.h"

#include <objbase.h>

#include <new>

namespace norvepa::test
{
namespace
{

// An engine that lacks memory for one call, whichever: what it was asked is never taken for answered.
class EngineOutOfMemoryWrites : public WriteScene, public testing::WithParamInterface<Write>
{
protected:
    void GivenFileAlone(std::string_view bytes) const
    {
        DeleteFileW(savedFile().c_str()); // which may not be there
        GivenFile(bytes);
    }

    [[nodiscard]] std::wstring savedFile() const
    {
        return GetParam().beside ? path() + L"(temp).xml" : file();
    }

    void ExpectUntouched(const std::string& before) const
    {
        EXPECT_EQ(Bytes(), before);
        EXPECT_THAT(FileNames(folder().path()), testing::SizeIs(1));
    }
};

INSTANTIATE_TEST_SUITE_P(, EngineOutOfMemoryWrites, testing::ValuesIn(EveryWrite()), NameOf);

TEST_P(EngineOutOfMemoryWrites, EverythingOrNothing)
{
    const std::string before = WritableFile(WritableContent());
    Result result{};

    WithEachEngineCallFailing(
        [&] { GivenFileAlone(before); }, [&] { result = GetParam().call(path().c_str()); },
        [&](bool ranOut) {
            if (ranOut)
            {
                ExpectUntouched(before);
                return;
            }
            EXPECT_EQ(result, PGSP_OK);
            EXPECT_EQ(MeaningOfFile(savedFile()), MeaningOf(WritableFile(GetParam().Whole())));
        });
}

using EngineOutOfMemoryWithoutAPlace = EngineOutOfMemoryWrites;

INSTANTIATE_TEST_SUITE_P(, EngineOutOfMemoryWithoutAPlace, testing::ValuesIn(WritesThatNeedAPlace()), NameOf);

TEST_P(EngineOutOfMemoryWithoutAPlace, NothingWhereThereIsNothingOfIt)
{
    const std::string before = WritableFile(XmlContent().Element(L"Other", XmlContent().Int(L"c", L"1")));
    GivenFile(before);
    Result result{};

    WithEachEngineCallFailing([] {}, [&] { result = GetParam().call(path().c_str()); },
                              [&](bool ranOut) {
                                  ExpectUntouched(before);
                                  EXPECT_TRUE(ranOut || result == GetParam().notFound);
                              });
}

class EngineOutOfMemoryCreates : public WriteScene, public testing::WithParamInterface<const wchar_t*>
{
};

INSTANTIATE_TEST_SUITE_P(OfEachKind, EngineOutOfMemoryCreates,
                         testing::Values(L"nam", L"driv", L"notif", L"pgsp"));

TEST_P(EngineOutOfMemoryCreates, AWholeFileOrNone)
{
    ASSERT_EQ(NorvXMLCreateFile(path().c_str(), GetParam()), PGSP_OK);
    const std::string whole = Bytes();
    Result result{};

    WithEachEngineCallFailing([&] { DeleteFileW(file().c_str()); },
                              [&] { result = NorvXMLCreateFile(path().c_str(), GetParam()); },
                              [&](bool ranOut) {
                                  if (ranOut)
                                  {
                                      EXPECT_THAT(FileNames(folder().path()), testing::IsEmpty());
                                      return;
                                  }
                                  EXPECT_EQ(result, PGSP_OK);
                                  EXPECT_EQ(Bytes(), whole);
                              });
}

class EngineOutOfMemoryCommits : public CommitScene
{
};

TEST_F(EngineOutOfMemoryCommits, NothingThatItHasNotValidated)
{
    Result result{};
    const auto prepare = [&] {
        WriteBytes(real(), "real");
        WriteBytes(temporary(), ValidLogName());
    };

    WithEachEngineCallFailing(
        prepare, [&] { result = Commit(); },
        [&](bool ranOut) {
            EXPECT_EQ(ReadBytes(real()), ranOut ? "real" : ValidLogName());
            EXPECT_EQ(Exists(temporary()), ranOut);
            EXPECT_EQ(result, PGSP_OK);
        });
}

TEST_F(EngineOutOfMemoryCommits, ADeletionWholeOrNotAtAll)
{
    const std::string before = LogNameFile(XmlContent().Text(L"a", L"1").Text(L"b", L"2"));
    const std::string after = LogNameFile(XmlContent().Text(L"b", L"2"));
    Result result{};
    const auto remove = [&] {
        result = DelValueAndCommit(folder() + L"\\", L"Name", LogNameSchema, L"Parameters", L"a");
    };

    WithEachEngineCallFailing([&] { WriteBytes(real(), before); }, remove,
                              [&](bool ranOut) {
                                  EXPECT_FALSE(Exists(temporary()));
                                  if (ranOut)
                                  {
                                      EXPECT_EQ(ReadBytes(real()), before);
                                      return;
                                  }
                                  EXPECT_EQ(result, PGSP_OK);
                                  EXPECT_EQ(MeaningOfFile(real()), MeaningOf(after));
                              });
}

TEST_F(EngineOutOfMemoryCommits, NoVerdictOnAFile)
{
    for (const std::string& bytes : {ValidLogName(), InvalidLogName(), std::string("<LogName")})
    {
        WriteBytes(real(), bytes);

        WithEachEngineCallFailing([] {}, [&] { static_cast<void>(Validate()); }, [](bool) {});
    }
}

class EngineOutOfMemoryWithoutCom : public WithoutComScene
{
protected:
    EngineOutOfMemoryWithoutCom() { GivenFile(LogDeviceFile(WritableContent())); }
};

HRESULT WINAPI LackMemory(void*)
{
    return E_OUTOFMEMORY;
}

TEST_F(EngineOutOfMemoryWithoutCom, IsNoThreadThatCannotHaveIt)
{
    OfBoth([](const auto& set) {
        const BrokenEngine engine({CO_E_NOTINITIALIZED});
        const ImportHook com("CoInitialize", LackMemory);

        EXPECT_THROW(static_cast<void>(set()), std::bad_alloc);
    });
}

TEST_F(EngineOutOfMemoryWithoutCom, TakesTheComThatItBroughtAlong)
{
    OfBoth([](const auto& set) {
        const BrokenEngine engine({CO_E_NOTINITIALIZED, E_OUTOFMEMORY});

        EXPECT_THROW(static_cast<void>(set()), std::bad_alloc);
    });
}

} // namespace
} // namespace norvepa::test
