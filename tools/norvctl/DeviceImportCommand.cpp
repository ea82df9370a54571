#include "Commands.h"
#include "Device.h"
#include "DeviceImport.h"
#include "DisplayText.h"
#include "Example.h"
#include "FittingTemplate.h"
#include "Interruption.h"
#include "Result.h"
#include "StorePaths.h"
#include "TemporaryDevice.h"
#include "Text.h"
#include "WatchEvents.h"
#include "norvepa.h"

#include <windows.h>
#include <io.h>
#include <iostream>

#include <cstdio>
#include <fcntl.h>
#include <fmt/format.h>
#include <iterator>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace norvctl
{

namespace
{

constexpr int NothingImported = 1; // the exit status

struct Arguments
{
    std::string device;
    std::string file;
    std::string source; // the template
    std::string model;  // the log device that a new one begins as
    bool isDryRun = false;
};

std::string StandardInput()
{
    _setmode(_fileno(stdin), _O_BINARY);
    return {std::istreambuf_iterator<char>(std::cin), {}};
}

DeviceDocument ReadDocument(const std::string& file)
{
    if (file == "-")
    {
        return ParseDeviceDocument("standard input", StandardInput());
    }
    const std::optional<std::string> bytes = BytesOf(ToWide(file));
    if (!bytes)
    {
        throw std::runtime_error(file + ": there is no such file, or it can't be read");
    }
    return ParseDeviceDocument(file, *bytes);
}

TemporaryDevice Begin(const Arguments& arguments, const FileValues& wanted, bool isThere)
{
    if (isThere)
    {
        return TemporaryDevice::CopyOf(arguments.device);
    }
    if (!arguments.model.empty())
    {
        RequireDevice(arguments.model);
        return TemporaryDevice::CopyOf(arguments.model);
    }
    return TemporaryDevice::FromTemplate(arguments.source.empty() ? FittingTemplate(wanted)
                                                                  : arguments.source);
}

std::string SubjectOf(const Arguments& arguments, const Difference& difference)
{
    return fmt::format("{}, {}\\{}", arguments.device, WordsFor(difference), difference.change.name);
}

std::string WordsFor(const Arguments& arguments, const ImportRefusal& refusal)
{
    const std::string subject = SubjectOf(arguments, refusal.difference);
    const std::string value = refusal.difference.change.after.value_or("-");
    return refusal.why.empty()
               ? fmt::format("{} {}: {}", subject, value, InWords(refusal.result))
               : fmt::format("{} {}: {}: {}", subject, value, InWords(refusal.result), refusal.why);
}

Json AsArray(const std::vector<ImportRefusal>& refused)
{
    Json array = Json::array();
    for (const ImportRefusal& refusal : refused)
    {
        Json each = AsArray(std::vector{refusal.difference}).front();
        each["result"] = refusal.result;
        each["reason"] = InWords(refusal.result);
        each["allowed"] = refusal.why;
        array.push_back(each);
    }
    return array;
}

[[noreturn]] void Refuse(const Report& report, const Arguments& arguments,
                         const std::vector<ImportRefusal>& refused)
{
    for (const ImportRefusal& refusal : refused)
    {
        std::cerr << "norvctl: " << OnOneLine(WordsFor(arguments, refusal)) << '\n';
    }
    std::cerr << fmt::format("norvctl: nothing has been imported: {} of the document's values can't be had\n",
                             refused.size());
    if (report.json)
    {
        report.Answer("", {{"done", "refused"}, {"device", arguments.device}, {"refused", AsArray(refused)}});
    }
    throw CLI::RuntimeError(NothingImported);
}

struct Done
{
    const char* word;  // for programs
    const char* words; // for people
};

constexpr Done Imported{"imported", "imported"};
constexpr Done Created{"created", "created"};
constexpr Done Unchanged{"unchanged", "unchanged"};
constexpr Done WouldChange{"compared", "would change"};
constexpr Done WouldCreate{"compared", "would create"};

void Answer(const Report& report, const Arguments& arguments, const Done& done,
            const std::vector<Difference>& changes)
{
    std::vector<std::string> lines = AsTexts(changes);
    lines.push_back(fmt::format("{} {}", done.words, arguments.device));
    report.Answer(AsLines(lines),
                  {{"done", done.word}, {"device", arguments.device}, {"changes", AsArray(changes)}});
}

// Told here, for the library announces nothing of temporary log devices.
void PutInPlace(const Arguments& arguments, TemporaryDevice& temporary, bool isThere)
{
    if (isThere)
    {
        temporary.ReplaceDevice(arguments.device);
    }
    else
    {
        temporary.BecomeDevice(arguments.device);
    }
    TellWatches(LogDevicesWord, ToWide(arguments.device));
}

void RequireNoBeginning(const Arguments& arguments)
{
    if (!arguments.source.empty() || !arguments.model.empty())
    {
        throw std::runtime_error(fmt::format(
            "there is a log device {} already, which is what the import begins with", arguments.device));
    }
}

void Import(const Report& report, const Arguments& arguments)
{
    const FileValues wanted = ReadDocument(arguments.file).content;
    const bool isThere = IsDeviceThere(arguments.device);
    if (isThere)
    {
        RequireNoBeginning(arguments);
    }
    const Interruption interruption;
    const std::optional<std::string> before = BytesOf(PathOfDevice(arguments.device));
    if (isThere && !before)
    {
        throw std::runtime_error(arguments.device + ": its file cannot be read just now");
    }
    TemporaryDevice temporary = Begin(arguments, wanted, isThere);
    const std::vector<Difference> changes = ImportChanges(temporary.name(), wanted);
    if (isThere && changes.empty())
    {
        return Answer(report, arguments, Unchanged, changes);
    }

    const auto refused = MakeEqual(temporary.name(), wanted, [&] { interruption.Require(); });
    if (!refused.empty())
    {
        Refuse(report, arguments, refused);
    }
    if (arguments.isDryRun)
    {
        return Answer(report, arguments, isThere ? WouldChange : WouldCreate, changes);
    }
    interruption.Require();
    if (BytesOf(PathOfDevice(arguments.device)) != before)
    {
        throw std::runtime_error(arguments.device +
                                 ": somebody else has changed it meanwhile, and it stays so");
    }
    PutInPlace(arguments, temporary, isThere);
    Answer(report, arguments, isThere ? Imported : Created, changes);
}

std::string RefusePart(const std::string& name)
{
    const std::wstring wide = ToWide(name);
    const bool isTemporary = wide.find(TemporaryPrefix) != std::wstring::npos;
    const bool isPart = name.find('\\') != std::string::npos;
    return isTemporary || isPart || name.empty() ? "this is not a log device that can be imported" : "";
}

} // namespace

void AddDeviceImportCommand(CLI::App& device, const Report& report)
{
    const auto arguments = std::make_shared<Arguments>();
    CLI::App* const import = device.add_subcommand(
        "import", "make one what a document of device export says: all of it or nothing. Values that the "
                  "document doesn't have are removed. Order, types and what isn't carried stay as they are, "
                  "but that a number of SpareSection becomes a text when it changes");
    import->add_option("DEVICE", arguments->device, "the log device, which need not be there")
        ->required()
        ->check(RefusePart);
    import->add_option("FILE", arguments->file, "the document; \"-\" reads standard input")->required();
    CLI::Option* const source = import->add_option(
        "--from", arguments->source,
        "the template that a new one begins as; without it, that of the document's board and protocol");
    import
        ->add_option("--like", arguments->model,
                     "the log device that a new one begins as, with its subdevices")
        ->excludes(source)
        ->type_name("DEVICE");
    source->type_name("TEMPLATE");
    import->add_flag("--dry-run", arguments->isDryRun, "change nothing, and tell what would change");
    import->callback([=, &report] { Import(report, *arguments);
});
ShowExample(*import, "norvctl device import Kesselhaus kesselhaus.json --dry-run");
ShowExample(*import, "norvctl device import \"Kesselhaus 2\" kesselhaus.json --like Kesselhaus");
} // namespace norvctl

} // namespace norvctl
