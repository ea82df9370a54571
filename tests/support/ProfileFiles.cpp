#include "support/ProfileFiles.h"

namespace norvepa::test
{

XmlContent Profiles(std::initializer_list<Profile> profiles)
{
    XmlContent values;
    XmlContent sections;
    for (const Profile& profile : profiles)
    {
        values.Element(L"Value", profile.value);
        sections.ParamSection(profile.value.substr(0, profile.value.find(L'/')), profile.content);
    }
    return XmlContent().Element(L"ValueCollection", values.Raw(sections.utf8()));
}

XmlContent SubParameter(std::wstring_view name, std::initializer_list<Profile> profiles)
{
    return XmlContent().ParamSection(name, Profiles(profiles));
}

XmlContent Spare(const XmlContent& entries)
{
    return XmlContent().Element(L"SpareSection", entries);
}

} // namespace norvepa::test
