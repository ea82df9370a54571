#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "frame/Text.h"
#include "norvepa.h"
#include "service/AccessTest.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "service/norvepaPgspBl64/NameForms.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"
#include "store/norvxml.h"

#include <optional>

using namespace norvepa;

namespace
{

// The subdevice of a template, which only the folder's exact word can ask for.
std::optional<SubdeviceName> SubdeviceOf(std::wstring_view folder, std::wstring_view name)
{
    return folder == TemplatesWord ? SplitSubdevice(name) : std::nullopt;
}

// What a key is asked of; a folder that isn't one of the three has no keys and holds every one.
Result AskForKey(std::wstring_view folder, const std::wstring& file, const wchar_t* key, std::int32_t flag)
{
    if (EqualNoCase(folder, BoardsWord))
    {
        return NorvXMLBoardKeyExists(file.c_str(), key, flag);
    }
    if (EqualNoCase(folder, ProtocolsWord))
    {
        return NorvXMLProtocolKeyExists(file.c_str(), key, flag);
    }
    return EqualNoCase(folder, TemplatesWord) ? NorvXMLTemplateKeyExists(file.c_str(), key, flag) : PGSP_OK;
}

} // namespace

int32_t PGSP_TemplateExistBL(const wchar_t* Folder, const wchar_t* Template, int32_t flag)
{
    return RunExport("PGSP_TemplateExistBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> Folder = %s, Template = %s, flag = %d", TraceToAnsi(Folder),
                   TraceToAnsi(Template), flag);
        if (Folder == nullptr || Template == nullptr || !IsAccessMode(flag))
        {
            return frame.InvalidParameters();
        }
        std::wstring name;
        if (const Result result = MakeNameIn(TemplateExistForms, Folder, Template, name); result != PGSP_OK)
        {
            return result; // without an exit trace
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        if (const auto subdevice = SubdeviceOf(Folder, Template))
        {
            const std::wstring file = TemplateFile(programFolder, subdevice->device);
            const Result result = NorvXMLSubdevExists(file.c_str(), subdevice->subdevice.c_str());
            NORV_TRACE(frame, TraceInfo, "<< SubdeviceExist for = %s : returned = %d", TraceToAnsi(Template),
                       result);
            return frame.Return(result);
        }

        std::wstring file = JoinPath(CatalogueFolder(programFolder, Folder), name);
        NORV_TRACE(frame, TraceInfo, "Calling _waccess_s for Template: %s", TraceToAnsi(file.c_str()));
        if (!Holds(ToLower(name), L".xml"))
        {
            file += L".xml"; // by the name alone and in any case, unlike the store's rules
        }
        return frame.Return(TestAccess(frame, file, flag));
    });
}

int32_t PGSP_TemplateKeyExistsBL(const wchar_t* Folder, const wchar_t* Template, const wchar_t* Key,
                                 int32_t flag)
{
    return RunExport("PGSP_TemplateKeyExistsBL: ", [&](const ExportFrame& frame) -> Result {
        if (IsMissing(Folder) || IsMissing(Template) || IsMissing(Key))
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }
        std::wstring file;
        if (const Result result = MakeFileIn(TemplateKeyExistsForms, programFolder, Folder, Template, file);
            result != PGSP_OK)
        {
            return result; // without an exit trace
        }
        return frame.Return(AskForKey(Folder, file, Key, flag));
    });
}
