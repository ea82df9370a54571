#include "DebuggerTrace.h"
#include "store/BrokenEngine.h"
#include "store/EveryRead.h"
#include "store/ReadScene.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

// The reads that load a document tell nothing of their own.
class DocumentReadTrace : public ReadScene, public testing::WithParamInterface<Read>
{
protected:
    [[nodiscard]] static std::vector<std::string> LinesOfReading(const std::wstring& file)
    {
        return LinesOf([&] { return GetParam().call(file.c_str()).result; });
    }

private:
    RedirectedRegistry m_registry;
};

INSTANTIATE_TEST_SUITE_P(, DocumentReadTrace, testing::ValuesIn(DocumentReads()), NameOf);

TEST_P(DocumentReadTrace, OfWhatIsFoundAndOfWhatIsNotIsSilent)
{
    EXPECT_THAT(LinesOfReading(File(LogDeviceFile(ReadableContent()))), IsEmpty());
    EXPECT_THAT(LinesOfReading(File(LogDeviceFile({}))), IsEmpty());
}

TEST_P(DocumentReadTrace, OfBadPathsIsSilent)
{
    EXPECT_THAT(LinesOfReading(L""), IsEmpty());
    EXPECT_THAT(LinesOfReading(std::wstring(300, L'x')), IsEmpty());
}

TEST_P(DocumentReadTrace, OfAMissingFileIsTheSizeGuards)
{
    const std::wstring file = folder() / L"missing";

    EXPECT_THAT(LinesOfReading(file), ElementsAre(TraceLine("CheckFileSize: ", "Error: FILE_NOT_FOUND : " +
                                                                                   ToUtf8(file + L".xml"))));
}

TEST_P(DocumentReadTrace, OfAFileThatIsTooLargeIsTheSizeGuards)
{
    const std::wstring file = File(std::string(10'000'001, ' '));

    EXPECT_THAT(LinesOfReading(file), ElementsAre(TraceLine("CheckFileSize: ", "Warning: FILE_TOO_LARGE : " +
                                                                                   ToUtf8(file + L".xml"))));
}

TEST_P(DocumentReadTrace, OfAMalformedFileIsSilent)
{
    EXPECT_THAT(LinesOfReading(File("<a></b>")), IsEmpty());
}

TEST_P(DocumentReadTrace, OfAMissingEngineIsSilent)
{
    const BrokenEngine engine({REGDB_E_CLASSNOTREG});

    EXPECT_THAT(LinesOfReading(File(LogDeviceFile(ReadableContent()))), IsEmpty());
}

} // namespace
} // namespace norvepa::test
