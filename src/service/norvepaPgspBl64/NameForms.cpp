#include "service/norvepaPgspBl64/NameForms.h"

#include "frame/Text.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"

namespace norvepa
{

namespace
{

Result AsItComes(const wchar_t* name, std::wstring& made)
{
    made = name;
    return PGSP_OK;
}

Result BoardTestFirst(const wchar_t* name, std::wstring& made)
{
    made = MakeBoardNameTestFirst(name);
    return PGSP_OK;
}

Result BoardStripFirst(const wchar_t* name, std::wstring& made)
{
    made = MakeBoardNameStripFirst(name);
    return PGSP_OK;
}

Result Protocol(const wchar_t* name, std::wstring& made)
{
    made = MakeProtocolName(name);
    return PGSP_OK;
}

Result TemplatePlain(const wchar_t* name, std::wstring& made)
{
    made = MakeTemplateName(name);
    return PGSP_OK;
}

bool HoldsLowered(std::wstring_view lowered, std::wstring_view prefix)
{
    return Holds(lowered, ToLower(prefix));
}

std::wstring LoweredWithPrefix(std::wstring_view lowered, std::wstring_view prefix)
{
    std::wstring whole(HoldsLowered(lowered, prefix) ? std::wstring_view{} : prefix);
    whole += lowered;
    return whole;
}

Result BoardTestFirstLowered(const wchar_t* name, std::wstring& made)
{
    const std::wstring lowered = ToLower(name);
    made =
        HoldsLowered(lowered, BoardPrefix) ? lowered : LoweredWithPrefix(WithoutStar(lowered), BoardPrefix);
    return PGSP_OK;
}

Result BoardStripFirstLowered(const wchar_t* name, std::wstring& made)
{
    made = LoweredWithPrefix(ToLower(WithoutStar(name)), BoardPrefix);
    return PGSP_OK;
}

Result ProtocolLowered(const wchar_t* name, std::wstring& made)
{
    made = LoweredWithPrefix(ToLower(name), ProtocolPrefix);
    return PGSP_OK;
}

// What is escaped is the caller's own text, not its small letters.
Result TemplateEscapingLowered(const wchar_t* name, std::wstring& made)
{
    const std::wstring lowered = ToLower(name);
    if (HoldsLowered(lowered, TemplatePrefix))
    {
        made = lowered;
        return PGSP_OK;
    }
    return MakeEscapedTemplateName(name, made);
}

} // namespace

constinit const NameForms TemplateExistForms{&BoardStripFirstLowered, &ProtocolLowered,
                                             &TemplateEscapingLowered};
constinit const NameForms TemplateKeyExistsForms{&BoardTestFirstLowered, &ProtocolLowered,
                                                 &TemplateEscapingLowered};
constinit const NameForms TemplateGetEnumValueRawForms{&BoardTestFirst, &Protocol, &TemplatePlain};
constinit const NameForms TemplateGetConstraintForms{&BoardTestFirst, &Protocol, &AsItComes};
constinit const NameForms TemplateSetValueForms{&BoardTestFirst, &Protocol, &TemplatePlain};
constinit const NameForms TemplateGetResourceStringForms{&BoardStripFirst, &Protocol,
                                                         &MakeTemplateNameEscaping};

Result MakeNameIn(const NameForms& forms, std::wstring_view folder, const wchar_t* name, std::wstring& made)
{
    if (EqualNoCase(folder, BoardsWord))
    {
        return forms.board(name, made);
    }
    if (EqualNoCase(folder, ProtocolsWord))
    {
        return forms.protocol(name, made);
    }
    return EqualNoCase(folder, TemplatesWord) ? forms.logDeviceTemplate(name, made) : AsItComes(name, made);
}

Result MakeFileIn(const NameForms& forms, const std::wstring& programFolder, std::wstring_view folder,
                  const wchar_t* name, std::wstring& file)
{
    std::wstring made;
    const Result result = MakeNameIn(forms, folder, name, made);
    if (result == PGSP_OK)
    {
        file = JoinPath(CatalogueFolder(programFolder, folder), made);
    }
    return result;
}

} // namespace norvepa
