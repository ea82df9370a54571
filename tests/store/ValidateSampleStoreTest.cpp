#include "frame/FileNames.h"
#include "store/norvxml.h"
#include "support/StoreRoots.h"

#include <gmock/gmock.h>
#include <ostream>
#include <utility>
#include <vector>

namespace norvepa::test
{
namespace
{

struct Sample
{
    std::wstring folder; // below the sample store
    std::wstring file;
    const wchar_t* schema;
};

void PrintTo(const Sample& sample, std::ostream* out)
{
    *out << ToUtf8(sample.folder) << "/" << ToUtf8(sample.file);
}

// All files of the sample store for which there is a schema.
std::vector<Sample> Samples()
{
    constexpr std::pair<const wchar_t*, const wchar_t*> Folders[]{
        {L"data-root\\data\\LogDevices", L"Corvane.Device.Driver.Logdevice"},
        {L"data-root\\data\\LogNames", L"Corvane.Device.Driver.Logname"},
        {L"program-root\\meta\\Boards", L"Boards.Schema"},
        {L"program-root\\meta\\Protocols", L"Protocols.Schema"},
        {L"program-root\\meta\\DefaultLogDevices", L"DefaultLogDevices.Schema"},
    };
    std::vector<Sample> samples;
    for (const auto& [folder, schema] : Folders)
    {
        for (const std::wstring& file : FileNames(FromUtf8(NORV_SAMPLE_STORE) + L"\\" + folder))
        {
            samples.push_back({folder, file, schema});
        }
    }
    return samples;
}

// Letters and digits only.
std::string TestName(const testing::TestParamInfo<Sample>& info)
{
    std::string name;
    for (const wchar_t character : info.param.folder.substr(info.param.folder.rfind(L'\\')) + info.param.file)
    {
        const bool plain = character < 0x80 && isalnum(character);
        name += plain ? std::string(1, static_cast<char>(character)) : "";
    }
    return name + "_" + std::to_string(info.index);
}

class ValidateSampleStore : public testing::TestWithParam<Sample>
{
};

TEST_P(ValidateSampleStore, TheFileIsValid)
{
    const StoreRoots roots;
    const std::wstring store = FromUtf8(NORV_SAMPLE_STORE) + L"\\";
    CopyTree(store + L"program-root\\Schemes", roots.program() + L"\\Schemes");
    const auto& [folder, file, schema] = GetParam();
    wchar_t name[260];
    std::uint32_t length = 260;
    ASSERT_EQ(NorvXMLUnescapeName(file.c_str(), name, &length), PGSP_OK);

    EXPECT_EQ(NorvXMLValidateFile(name, schema, (store + folder).c_str()), PGSP_OK);
}

INSTANTIATE_TEST_SUITE_P(Store, ValidateSampleStore, testing::ValuesIn(Samples()), TestName);

} // namespace
} // namespace norvepa::test
