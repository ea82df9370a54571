#include "support/Norvctl.h"
#include "support/SampleChange.h"

#include <nlohmann/json.hpp>
#include <regex>
#include <string>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class NorvctlReport : public Norvctl
{
protected:
    [[nodiscard]] std::wstring Page() const { return folder / L"store.html"; }
    [[nodiscard]] std::wstring Backup() const { return folder / L"store.cab"; }

    [[nodiscard]] std::string Written(const Words& more = {}) const
    {
        Words words{L"report", Page()};
        words.insert(words.end(), more.begin(), more.end());
        static_cast<void>(OutputOfNorvctl(words));
        return ReadBytes(Page());
    }
};

TEST_F(NorvctlReport, TellsEveryKindOfObjectWithItsValues)
{
    const std::string page = Written();

    EXPECT_THAT(page, AllOf(HasSubstr("<details class=\"object\" id=\"log-name-Kessel_231\">"),
                            HasSubstr("id=\"log-device-Presse_233\""), HasSubstr("id=\"board-AFK110\""),
                            HasSubstr("id=\"protocol-MPI\""), HasSubstr("id=\"template-L2-AFK110\"")));
    EXPECT_THAT(page, HasSubstr("<th scope=\"row\">watchdog</th><td>2000</td>"
                                "<td data-word=\"allowed\">10 to 65530 in steps of 10</td>"
                                "<td data-word=\"default\">400</td>"));
}

TEST_F(NorvctlReport, HasFindingsOnTopWhichLeadToTheirPlaces)
{
    const std::string page = Written();

    const std::size_t findings = page.find("id=\"findings\"");
    EXPECT_LT(findings, page.find("id=\"log-name\""));
    EXPECT_THAT(page.substr(findings), HasSubstr("log name <a href=\"#log-name-Altanlage\">Altanlage</a>"));
}

TEST_F(NorvctlReport, LinksEachLogNameToItsDevice)
{
    EXPECT_THAT(Written(), HasSubstr("<span class=\"name\">Kessel#1</span>"
                                     "<a href=\"#log-device-Kesselhaus\">Kesselhaus</a>"
                                     "<a href=\"#protocol-L2\">L2</a>"));
}

TEST_F(NorvctlReport, HasHiddenDevicesToo)
{
    EXPECT_THAT(Written(), HasSubstr("<span class=\"name\">PC internal</span>"));
}

TEST_F(NorvctlReport, EscapesWhateverTheStoreHolds)
{
    ChangeSample(LogDevicePath(L"Presse(nmbr)3"), "Presse 1 und 2 abgebaut",
                 "&lt;/td&gt;&lt;img src=x onerror=alert(2)&gt;");
    static_cast<void>(OutputOfNorvctl({L"device", L"copy", L"Presse#3", L"<script>alert(1)</script>"}));

    const std::string page = Written();

    EXPECT_THAT(page, AllOf(HasSubstr("&lt;script&gt;alert(1)&lt;/script&gt;"),
                            HasSubstr("&lt;/td&gt;&lt;img src=x onerror=alert(2)&gt;"),
                            Not(HasSubstr("<script>alert")), Not(HasSubstr("<img"))));
}

TEST_F(NorvctlReport, LoadsNothing)
{
    const std::string page = Written();

    EXPECT_THAT(page, HasSubstr("content=\"default-src &#39;none&#39;;"));
    EXPECT_FALSE(std::regex_search(page, std::regex("(src|href)=\"(?!#)|url\\(|@import")));
}

TEST_F(NorvctlReport, SinceABackupMarksWhatHasChanged)
{
    static_cast<void>(OutputOfNorvctl({L"store", L"backup", Backup()}));
    static_cast<void>(OutputOfNorvctl({L"device", L"set", L"Kesselhaus", L"baudrate", L"500000"}));
    static_cast<void>(OutputOfNorvctl({L"name", L"create", L"Mischer"}));
    static_cast<void>(OutputOfNorvctl({L"device", L"delete", L"Labor", L"--force"}));

    const std::string page = Written({L"--since", Backup()});

    EXPECT_THAT(page, HasSubstr("<td><del>1500000</del> <ins>500000</ins></td>"));
    EXPECT_THAT(page, HasSubstr("<span class=\"tag added\">added</span></td><td>log name "
                                "<a href=\"#log-name-Mischer\">Mischer</a>"));
    EXPECT_THAT(page, HasSubstr("<span class=\"tag removed\">removed</span></td><td>log device "
                                "<a href=\"#log-device-Labor\">Labor</a>"));
}

TEST_F(NorvctlReport, SinceABackupOfTheSameStoreTellsThatNothingHasChanged)
{
    static_cast<void>(OutputOfNorvctl({L"store", L"backup", Backup()}));

    EXPECT_THAT(Written({L"--since", Backup()}), HasSubstr("<p>Nothing has changed.</p>"));
}

TEST_F(NorvctlReport, SinceWhatIsNoBackupLeavesThePageAsItWas)
{
    WriteBytes(Page(), "before");
    WriteBytes(Backup(), "no archive");

    const ProgramEnd end = RunNorvctl({L"report", Page(), L"--since", Backup()});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("store.cab"));
    EXPECT_EQ(ReadBytes(Page()), "before");
}

TEST_F(NorvctlReport, InAFolderThatIsNotThereIsRefused)
{
    const ProgramEnd end = RunNorvctl({L"report", folder / L"nowhere\\store.html"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("store.html"));
}

TEST_F(NorvctlReport, TellsOfAStoreWhoseDataIsGone)
{
    locations.Set(L"Corvane_Oam_Data", folder / L"gone");

    EXPECT_THAT(Written(), AllOf(HasSubstr("id=\"board-AFK110\""), HasSubstr("tag error")));
}

TEST_F(NorvctlReport, AsJsonTellsWhatItHasWritten)
{
    const json answer = json::parse(OutputOfNorvctl({L"--json", L"report", Page()}));

    EXPECT_EQ(answer.at("done"), "wrote");
    EXPECT_EQ(answer.at("findings"), 2);
    EXPECT_GT(answer.at("objects"), 40);
}

} // namespace
} // namespace norvepa::test
