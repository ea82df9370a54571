#include "Commands.h"
#include "Doctor.h"

namespace norvctl
{

namespace
{

constexpr int FoundWrong = 1; // the exit status

void Tell(const Report& report)
{
    const Findings findings = ExamineStore();
    report.Answer(findings.empty() ? "nothing is wrong" : AsLines(findings), AsArray(findings));
    if (!findings.empty())
    {
        throw CLI::RuntimeError(FoundWrong);
    }
}

} // namespace

Findings ExamineStore()
{
    Progress progress("doctor: log devices");
    Findings findings;
    const StoreFolders folders = CheckFolders(findings);
    if (folders.schemas)
    {
        CheckSchemas(findings);
    }
    Catalogue catalogue(folders, findings);
    CheckDevices(catalogue, folders, progress, findings);
    CheckNames(folders, findings);
    return findings;
}

void AddDoctorCommand(CLI::App& app, const Report& report)
{
    app.add_subcommand("doctor", "look for all that is wrong in the store, and tell what to do about it")
        ->callback([&report] { Tell(report); });
}

} // namespace norvctl
