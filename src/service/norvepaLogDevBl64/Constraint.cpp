#include "frame/Arguments.h"
#include "service/norvepaLogDevBl64/DeviceCatalogue.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "store/norvxmlCatalogue.h"

namespace norvepa
{

Result LogDeviceGetConstraint(const wchar_t* LogDevice, const wchar_t* Parameter, const wchar_t* Constraint,
                              std::wstring* value)
{
    const ExportFrame frame{"LogDeviceGetConstraint: "};

    NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, Parameter = %s, Constraint = %s",
               TraceToAnsi(LogDevice), TraceToAnsi(Parameter), TraceToAnsi(Constraint));
    if (IsMissing(LogDevice) || IsMissing(Parameter) || IsMissing(Constraint) || value == nullptr)
    {
        return frame.InvalidParameters();
    }
    const std::wstring dataFolder = GetDataFolder();
    if (dataFolder.empty())
    {
        return frame.FolderNotFound("Can not get ProgramData Path");
    }
    const std::wstring programFolder = GetProgramFolder();
    if (programFolder.empty())
    {
        return NothingKnown(frame);
    }

    const DeviceCatalogue files = CatalogueOf(frame, dataFolder, programFolder, LogDevice);
    Result result = NorvXMLGetConstraint(files.board.c_str(), Parameter, Constraint, value);
    if (result != PGSP_OK)
    {
        NORV_TRACE(frame, TraceInfo,
                   "Constraint not found (Ret=0x%x) in the Boardfile=%s searching Protocol=%s",
                   static_cast<unsigned>(result), TraceToAnsi(files.board.c_str()),
                   TraceToAnsi(files.protocol.c_str()));
        result = NorvXMLGetConstraint(files.protocol.c_str(), Parameter, Constraint, value);
    }
    if (result != PGSP_OK)
    {
        NORV_TRACE(frame, TraceExit, "<< return PGSP_ERR_PARAM_NOT_FOUND, the constraint was not found.");
        return PGSP_ERR_PARAM_NOT_FOUND; // whatever kept the protocol from answering
    }
    NORV_TRACE(frame, TraceExit, "<< return PGSP_OK, Constraint = %s", TraceToAnsi(value->c_str()));
    return PGSP_OK;
}

std::wstring ConstraintOrEmpty(const wchar_t* logDevice, const wchar_t* parameter, const wchar_t* constraint)
{
    std::wstring value;
    return LogDeviceGetConstraint(logDevice, parameter, constraint, &value) == PGSP_OK ? value
                                                                                       : std::wstring{};
}

} // namespace norvepa
