#pragma once

// The one pass of the pull engine over a file's bytes, and the image that comes of it.
//
// Callers may rely on: DTDs are prohibited: a DOCTYPE stops the engine, as do a malformed place and an end
// that comes too early; the image then holds what lay ahead of that. An engine without memory throws
// std::bad_alloc, but for its own object.

#include "xml/XmlImage.h"

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace norvepa
{

class ImageMaker
{
public:
    // Null, with the reason in `status`, when there is no engine.
    [[nodiscard]] static std::shared_ptr<const XmlImage> Make(std::string_view bytes, HRESULT& status);

private:
    explicit ImageMaker(IXmlReader& engine);

    void ReadAll();
    [[nodiscard]] bool IsWithinRoot(XmlNodeType type) noexcept;
    [[nodiscard]] bool HasMoved(XmlNodeType type) noexcept;
    void AddNode(XmlNodeType type);
    [[nodiscard]] XmlImage::Span AddAttributes();
    [[nodiscard]] XmlImage::Span AddText(std::wstring_view text);
    [[nodiscard]] std::uint32_t NumberOfName();
    [[nodiscard]] std::wstring_view Value();
    [[nodiscard]] XmlReadState State() noexcept;

    struct Place
    {
        XmlNodeType type = XmlNodeType_None;
        UINT line = 0;
        UINT column = 0;

        bool operator==(const Place&) const noexcept = default;
    };

    struct Hash : std::hash<std::wstring_view>
    {
        using is_transparent = void;
    };

    IXmlReader& m_engine;
    Place m_place;
    std::size_t m_depth = 0; // of elements that are open
    std::unordered_map<std::wstring, std::uint32_t, Hash, std::equal_to<>> m_numbers; // of names
    std::shared_ptr<XmlImage> m_image = std::make_shared<XmlImage>();
};

} // namespace norvepa
