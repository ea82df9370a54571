#include "LifeScene.h"

#include <stdexcept>

namespace norvepa::test
{

namespace
{

// What a call that makes a temporary log device gives back.
template <typename Call>
std::wstring NameMadeBy(const Call& call)
{
    OutputBuffer name(TemporaryNameRoom);
    const std::int32_t result = call(name.data(), &name.length);
    return result == PGSP_OK ? name.text() : L"(result " + std::to_wstring(result) + L")";
}

} // namespace

std::wstring TemporaryName(unsigned number)
{
    const std::wstring digits = std::to_wstring(number);
    return L"PGSP_TEMP_LOG_DEVICE____" + std::wstring(3 - digits.size(), L'0') + digits;
}

XmlContent Rights(std::wstring_view enableDelete, std::wstring_view hidden)
{
    return XmlContent().Element(L"Ndi",
                                XmlContent().Bool(L"enable_delete", enableDelete).Bool(L"hidden", hidden));
}

HeldElsewhere::HeldElsewhere(const StoreRoots& roots, const std::wstring& path, Sharing sharing)
    : m_holder(L"file_holder.exe", roots.registry())
{
    const std::string answer = m_holder.Ask((sharing == Sharing::Nothing ? "alone|" : "") + ToUtf8(path));
    if (answer != "held")
    {
        throw std::runtime_error(answer);
    }
}

void LifeScene::WriteTemplate(const std::wstring& fileName, const XmlContent& content) const
{
    WriteBytes(roots.deviceTemplate(fileName), LogDeviceFile(content));
}

bool LifeScene::IsThere(const std::wstring& fileName) const
{
    return Exists(roots.logDevice(fileName));
}

std::wstring LifeScene::MakeTemporary(const std::wstring& logDevice) const
{
    return NameMadeBy([&](wchar_t* name, std::uint32_t* length) {
        return library.LogDeviceCreateTempBL(logDevice.c_str(), name, length);
    });
}

std::wstring LifeScene::MakeTemporaryFromTemplate(const std::wstring& name) const
{
    return NameMadeBy([&](wchar_t* made, std::uint32_t* length) {
        return library.LogDeviceCreateTempFromDefBL(name.c_str(), made, length);
    });
}

void LifeScene::TakeNumbers(unsigned first, unsigned end) const
{
    for (unsigned number = first; number < end; ++number)
    {
        WriteBytes(roots.logDevice(TemporaryName(number)), "taken");
    }
}

} // namespace norvepa::test
