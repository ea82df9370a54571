#include "support/DeviceStore.h"

#include "support/ShellFolders.h"
#include "support/XmlMeaning.h"

namespace norvepa::test
{

Catalogue& Catalogue::Parameter(std::wstring_view name, ConstraintWords words, const XmlContent& collection)
{
    XmlContent content;
    for (const ConstraintWord& word : words)
    {
        content.Element(word.word, word.text);
    }
    m_sections.ParamSection(name, content.Raw(collection.utf8()));
    return *this;
}

XmlContent Catalogue::content() const
{
    return XmlContent().Element(L"Constraints", m_sections);
}

XmlContent SectionCollection(Texts items)
{
    XmlContent sections;
    for (const std::wstring_view item : items)
    {
        sections.ParamSection(item, {});
    }
    return XmlContent().Element(L"ValueCollection", sections);
}

void DeviceStore::WriteDevice(const std::wstring& fileName, const XmlContent& content,
                              std::wstring_view board, std::wstring_view protocol) const
{
    WriteBytes(m_roots.logDevice(fileName), LogDeviceFile(content, board, protocol));
}

void DeviceStore::WriteBoard(const Catalogue& catalogue, std::wstring_view id) const
{
    WriteBytes(m_roots.board(std::wstring(id)), BoardFile(catalogue.content(), id));
}

void DeviceStore::WriteProtocol(const Catalogue& catalogue, std::wstring_view name) const
{
    WriteBytes(m_roots.protocol(std::wstring(name)), ProtocolFile(catalogue.content(), name));
}

void DeviceStore::UseOurSchemas() const
{
    CopyTree(FromUtf8(NORV_SAMPLE_STORE) + L"\\program-root\\Schemes", m_roots.program() + L"\\Schemes");
}

void DeviceStore::TakeDataFolderAway() const
{
    DeleteMachineValue(LocationsKey, L"Corvane_Oam_Data");
    SetCommonApplicationData(m_roots.folder().path());
}

void DeviceStore::TakeProgramFolderAway() const
{
    DeleteMachineValue(LocationsKey, L"Corvane_Oam");
    SetCommonProgramFiles(m_roots.folder().path());
}

std::wstring DeviceStore::DeviceForPathOf(std::size_t length) const
{
    return std::wstring(length - deviceFolder().size() - 1, L'd');
}

std::string DeviceStore::Saved(const std::wstring& fileName) const
{
    return MeaningOfFile(m_roots.logDevice(fileName));
}

std::string DeviceStore::Bytes(const std::wstring& fileName) const
{
    return ReadBytes(m_roots.logDevice(fileName));
}

} // namespace norvepa::test
