#include "endurance/Calls.h"

namespace norvepa::test
{

namespace
{

using Board = One<Boards>;
using Protocol = One<Protocols>;
using Template = One<Templates>;
using Folder = One<Folders>;
using File = One<CatalogueFiles>;
using Section = One<Sections>;
using Parameter = One<Parameters>;
using BusParameter = One<BusParameters>;
using Value = One<Values>;
using Key = One<Keys>;

constexpr Call Calls[] = {
    {"PGSP_BoardGetEnumValueBL",
     Make<&Exports::PGSP_BoardGetEnumValueBL, One<BoardSections>, Index, Output, Output>},
    {"PGSP_BoardGetNotSupportedBL", Make<&Exports::PGSP_BoardGetNotSupportedBL, Board, Output>},
    {"PGSP_BoardGetResourceStringBL",
     Make<&Exports::PGSP_BoardGetResourceStringBL, Board, One<Links>, One<Languages>, Output, Flag>},
    {"PGSP_BoardGetValueBL", Make<&Exports::PGSP_BoardGetValueBL, Board, Parameter, Output>},
    {"PGSP_BoardGetValueCollectionBL", Make<&Exports::PGSP_BoardGetValueCollectionBL, Key, Board, Output>},
    {"PGSP_BoardGetValueListBL",
     Make<&Exports::PGSP_BoardGetValueListBL, Board, Names<std::uint32_t>, Output>},
    {"PGSP_BoardGetValueRawBL", Make<&Exports::PGSP_BoardGetValueRawBL, Board, Section, Parameter, Output>},

    {"PGSP_ProtocolGetEnumBaudrateBL",
     Make<&Exports::PGSP_ProtocolGetEnumBaudrateBL, Protocol, Value, Index, Output>},
    {"PGSP_ProtocolGetEnumBusprofilesBL",
     Make<&Exports::PGSP_ProtocolGetEnumBusprofilesBL, Protocol, Index, Output>},
    {"PGSP_ProtocolGetEnumValueBL", Make<&Exports::PGSP_ProtocolGetEnumValueBL, Protocol, BusParameter, Value,
                                         BusParameter, Value, Index, Output, Output>},
    {"PGSP_ProtocolGetValueBL", Make<&Exports::PGSP_ProtocolGetValueBL, Protocol, BusParameter, Value,
                                     BusParameter, Value, Parameter, Output>},
    {"PGSP_ProtocolGetValueRawBL",
     Make<&Exports::PGSP_ProtocolGetValueRawBL, Protocol, Key, Parameter, Output>},
    {"PGSP_GetParamDescBL", Make<&Exports::PGSP_GetParamDescBL, Protocol, BusParameter, Output>},
    {"PGSP_ProfileCollectionExistsBL",
     Make<&Exports::PGSP_ProfileCollectionExistsBL, Protocol, BusParameter, Value>},

    {"PGSP_DefDeviceGetEnumValueBL",
     Make<&Exports::PGSP_DefDeviceGetEnumValueBL, Template, Index, Output, Output>},
    {"PGSP_DefDeviceGetValueBL", Make<&Exports::PGSP_DefDeviceGetValueBL, Template, Parameter, Output, Flag>},
    {"PGSP_DefDeviceGetValueRawBL",
     Make<&Exports::PGSP_DefDeviceGetValueRawBL, Template, Section, Parameter, Output>},

    {"PGSP_TemplateExistBL", Make<&Exports::PGSP_TemplateExistBL, Folder, File, Flag>},
    {"PGSP_TemplateGetConstraintBL",
     Make<&Exports::PGSP_TemplateGetConstraintBL, Folder, File, Parameter, One<Constraints>, Output>},
    {"PGSP_TemplateGetEnumBL", Make<&Exports::PGSP_TemplateGetEnumBL, Folder, Index, Output>},
    {"PGSP_TemplateGetEnumNoPrefixBL", Make<&Exports::PGSP_TemplateGetEnumNoPrefixBL, Folder, Index, Output>},
    {"PGSP_TemplateGetEnumValueRawBL",
     Make<&Exports::PGSP_TemplateGetEnumValueRawBL, Folder, File, Key, Index, Output>},
    {"PGSP_TemplateGetListBL", Make<&Exports::PGSP_TemplateGetListBL, Folder, Output>},
    {"PGSP_TemplateGetResourceStringBL", Make<&Exports::PGSP_TemplateGetResourceStringBL, Folder, File,
                                              One<Links>, One<Languages>, Output, Flag>},
    {"PGSP_TemplateKeyExistsBL", Make<&Exports::PGSP_TemplateKeyExistsBL, Folder, File, Key, Flag>},
    {"PGSP_TemplateSetValueBL", Make<&Exports::PGSP_TemplateSetValueBL, Folder, File, Parameter, Value>},
};

} // namespace

std::span<const Call> CatalogueCalls()
{
    return Calls;
}

} // namespace norvepa::test
