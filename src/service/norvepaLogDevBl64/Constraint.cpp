#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"

namespace norvepa
{

Result LogDeviceGetConstraint(DeviceCatalogue& catalogue, const wchar_t* Parameter, const wchar_t* Constraint,
                              std::wstring* value)
{
    const ExportFrame frame{"LogDeviceGetConstraint: "};

    NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, Parameter = %s, Constraint = %s",
               TraceToAnsi(catalogue.logDevice()), TraceToAnsi(Parameter), TraceToAnsi(Constraint));
    if (IsMissing(catalogue.logDevice()) || IsMissing(Parameter) || IsMissing(Constraint) || value == nullptr)
    {
        return frame.InvalidParameters();
    }
    if (const auto exit = catalogue.Unavailable(frame))
    {
        return *exit;
    }

    Result result = NorvXMLGetConstraint(catalogue.board().c_str(), Parameter, Constraint, value);
    if (result != PGSP_OK)
    {
        NORV_TRACE(frame, TraceInfo,
                   "Constraint not found (Ret=0x%x) in the Boardfile=%s searching Protocol=%s",
                   static_cast<unsigned>(result), TraceToAnsi(catalogue.board().c_str()),
                   TraceToAnsi(catalogue.protocol().c_str()));
        result = NorvXMLGetConstraint(catalogue.protocol().c_str(), Parameter, Constraint, value);
    }
    if (result != PGSP_OK)
    {
        NORV_TRACE(frame, TraceExit, "<< return PGSP_ERR_PARAM_NOT_FOUND, the constraint was not found.");
        return PGSP_ERR_PARAM_NOT_FOUND; // whatever kept the protocol from answering
    }
    NORV_TRACE(frame, TraceExit, "<< return PGSP_OK, Constraint = %s", TraceToAnsi(value->c_str()));
    return PGSP_OK;
}

Result LogDeviceGetConstraint(const wchar_t* LogDevice, const wchar_t* Parameter, const wchar_t* Constraint,
                              std::wstring* value)
{
    DeviceCatalogue catalogue(LogDevice);
    return LogDeviceGetConstraint(catalogue, Parameter, Constraint, value);
}

std::wstring ConstraintOrEmpty(DeviceCatalogue& catalogue, const wchar_t* parameter,
                               const wchar_t* constraint)
{
    std::wstring value;
    return LogDeviceGetConstraint(catalogue, parameter, constraint, &value) == PGSP_OK ? value
                                                                                       : std::wstring{};
}

} // namespace norvepa
