#include "TemplateScene.h"

namespace norvepa::test
{

std::wstring TemplateScene::PathOf(const std::wstring& folder, const std::wstring& fileName) const
{
    return roots.program() + L"\\meta\\" + folder + L"\\" + fileName + L".xml";
}

void TemplateScene::WriteTemplate(const std::wstring& name, const XmlContent& content) const
{
    WriteBytes(roots.deviceTemplate(name), LogDeviceFile(content));
}

void TemplateScene::WriteIn(const std::wstring& folder, const std::wstring& fileName,
                            const XmlContent& content) const
{
    WriteBytes(PathOf(folder, fileName), XmlFile(L"Device", {}, content));
}

std::int32_t TemplateScene::Exist(const std::wstring& folder, const std::wstring& name,
                                  std::int32_t flag) const
{
    return library.PGSP_TemplateExistBL(folder.c_str(), name.c_str(), flag);
}

std::int32_t TemplateScene::KeyExists(const std::wstring& folder, const std::wstring& name,
                                      const std::wstring& key) const
{
    return library.PGSP_TemplateKeyExistsBL(folder.c_str(), name.c_str(), key.c_str(), 0);
}

std::wstring TemplateScene::Item(const std::wstring& folder, const std::wstring& name,
                                 const std::wstring& key, std::uint32_t index) const
{
    return TextOf([&](wchar_t* value, std::uint32_t* length) {
        return library.PGSP_TemplateGetEnumValueRawBL(folder.c_str(), name.c_str(), key.c_str(), index, value,
                                                      length);
    });
}

std::wstring TemplateScene::Constraint(const std::wstring& folder, const std::wstring& fileName,
                                       const std::wstring& parameter, const std::wstring& word) const
{
    return TextOf([&](wchar_t* value, std::uint32_t* length) {
        return library.PGSP_TemplateGetConstraintBL(folder.c_str(), fileName.c_str(), parameter.c_str(),
                                                    word.c_str(), value, length);
    });
}

std::int32_t TemplateScene::Set(const std::wstring& folder, const std::wstring& fileName,
                                const std::wstring& parameter, const std::wstring& value) const
{
    return library.PGSP_TemplateSetValueBL(folder.c_str(), fileName.c_str(), parameter.c_str(),
                                           value.c_str());
}

std::wstring TemplateScene::FileName(const std::wstring& folder, std::uint32_t index) const
{
    return TextOf([&](wchar_t* name, std::uint32_t* length) {
        return library.PGSP_TemplateGetEnumBL(folder.c_str(), index, name, length);
    });
}

std::wstring TemplateScene::DevicePair(const std::wstring& name, std::uint32_t index) const
{
    return PairOf(
        [&](wchar_t* parameter, std::uint32_t* parameterLength, wchar_t* value, std::uint32_t* valueLength) {
            return library.PGSP_DefDeviceGetEnumValueBL(name.c_str(), index, parameter, parameterLength,
                                                        value, valueLength);
        });
}

std::wstring TemplateScene::DeviceValue(const std::wstring& name, const std::wstring& parameter,
                                        std::int32_t flag) const
{
    return TextOf([&](wchar_t* value, std::uint32_t* length) {
        return library.PGSP_DefDeviceGetValueBL(name.c_str(), parameter.c_str(), value, length, flag);
    });
}

std::wstring TemplateScene::DeviceValueRaw(const std::wstring& name, const wchar_t* path,
                                           const std::wstring& parameter) const
{
    return TextOf([&](wchar_t* value, std::uint32_t* length) {
        return library.PGSP_DefDeviceGetValueRawBL(name.c_str(), path, parameter.c_str(), value, length);
    });
}

} // namespace norvepa::test
