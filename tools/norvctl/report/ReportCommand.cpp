#include "Commands.h"
#include "Doctor.h"
#include "Example.h"
#include "LibraryVersion.h"
#include "StoreArchive.h"
#include "StoreRoots.h"
#include "Text.h"
#include "WholeFile.h"
#include "report/Page.h"

#include <windows.h>

#include <array>
#include <ctime>
#include <fmt/chrono.h>
#include <fmt/format.h>
#include <memory>
#include <string>
#include <utility>

namespace norvctl
{

namespace
{

struct Arguments
{
    std::string file;
    std::string since; // a backup
};

std::string ComputerName()
{
    std::array<wchar_t, MAX_COMPUTERNAME_LENGTH + 1> name{};
    auto length = static_cast<DWORD>(name.size());
    return GetComputerNameW(name.data(), &length) != 0 ? ToUtf8({name.data(), length}) : "this computer";
}

report::Facts FactsNow()
{
    report::Facts facts;
    facts.computer = ComputerName();
    facts.dataRoot = ToUtf8(PathOf(DataRoot));
    facts.programRoot = ToUtf8(PathOf(ProgramRoot));
    facts.library = "NorvepaBl64x " + LibraryVersion();
    facts.time = fmt::format("{:%Y-%m-%d %H:%M:%S}", fmt::localtime(std::time(nullptr)));
    return facts;
}

// The store as the backup has it, read by the library from a copy of its own.
report::Objects ReadBackup(const std::string& file)
{
    const BackupReader backup(ToWide(file));
    const OtherStore store(backup.DataFolder());
    Progress progress("report: " + file);
    return report::ReadData(progress);
}

report::MarkedObjects ReadMarked(const Arguments& arguments)
{
    // The older store first: reading the present one then finds the library's memory as it leaves it.
    const report::Objects older = arguments.since.empty() ? report::Objects() : ReadBackup(arguments.since);
    Progress progress("report");
    report::Objects objects = report::ReadStore(progress);
    return arguments.since.empty() ? report::Unmarked(std::move(objects))
                                   : report::MarkChanges(older, std::move(objects));
}

void Write(const Report& report, const Arguments& arguments)
{
    report::Facts facts = FactsNow();
    facts.since = arguments.since;
    const report::MarkedObjects objects = ReadMarked(arguments);
    const Findings findings = ExamineStore();
    SaveWholeFile(ToWide(arguments.file), report::PageOf(facts, findings, objects));
    report.Answer(
        fmt::format("wrote {}: {} objects, {} findings", arguments.file, objects.size(), findings.size()),
        {{"done", "wrote"},
         {"file", arguments.file},
         {"objects", objects.size()},
         {"findings", findings.size()}});
}

} // namespace

void AddReportCommand(CLI::App& app, const Report& report)
{
    CLI::App* const command = app.add_subcommand(
        "report", "write the whole store as one page of HTML, to look at or to send to whoever "
                  "helps; what is wrong stands on top");
    const auto arguments = std::make_shared<Arguments>();
    command->add_option("FILE", arguments->file, "the page; one that is there is replaced")->required();
    command
        ->add_option("--since", arguments->since, "mark what has changed since this backup of store backup")
        ->type_name("FILE");
    command->callback([=, &report] { Write(report, *arguments); });
    ShowExample(*command, "norvctl report store.html");
    ShowExample(*command, "norvctl report store.html --since monday.cab");
}

} // namespace norvctl
