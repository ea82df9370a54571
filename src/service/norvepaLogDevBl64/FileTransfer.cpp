#include "frame/FileNames.h"
#include "frame/Text.h"
#include "handover/norvepaFileCache.h"
#include "norvepa.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"
#include "win/WholeFile.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>

using namespace norvepa;

namespace
{

struct FileKind
{
    std::uint16_t number;
    std::wstring_view prefix;
    std::wstring (*root)();
    std::wstring_view middle;
    std::wstring_view folder;
};

constexpr std::array<FileKind, 5> FileKinds{{
    {1, L"", &GetDataFolder, L"data", L"LogNames"},
    {2, L"", &GetDataFolder, L"data", LogDevicesWord},
    {3, BoardPrefix, &GetProgramFolder, L"meta", BoardsWord},
    {4, TemplatePrefix, &GetProgramFolder, L"meta", TemplatesWord},
    {5, ProtocolPrefix, &GetProgramFolder, L"meta", ProtocolsWord},
}};

// Any other number stands for a log device.
const FileKind& KindOf(std::uint16_t number)
{
    constexpr const FileKind& logDevice = FileKinds[1];

    const auto row = std::find_if(FileKinds.begin(), FileKinds.end(),
                                  [=](const FileKind& kind) { return kind.number == number; });
    return row == FileKinds.end() ? logDevice : *row;
}

// Without its root the path is relative to the current folder, which isn't told by a code of its own.
std::wstring FullPath(const FileKind& kind, std::wstring name)
{
    ExtendByAnywhereRule(name);
    if (!Holds(name, kind.prefix))
    {
        name.insert(0, kind.prefix);
    }
    return JoinPath(MakeStoreFolder(kind.root(), kind.middle, kind.folder), name);
}

Result StoreFile(std::uint32_t clientId, const std::wstring& file)
{
    const std::optional<std::string> bytes = win::ReadWholeFile(file);
    return bytes ? FileCache().FileCacheStore(clientId, file, *bytes) : PGSP_ERR_NO_MORE_ITEMS;
}

// The last piece takes the copy away, and so does an index that has none.
Result ReadPiece(std::uint32_t clientId, const std::wstring& file, std::uint32_t index, void* buffer,
                 std::uint32_t* length)
{
    const Result result = FileCache().FileCacheRead(clientId, file, index, buffer, length);
    if (result != PGSP_ERR_BUFFER_TOO_SHORT)
    {
        FileCache().FileCacheRemove(clientId, file);
    }
    return result;
}

} // namespace

int32_t LogDeviceGetXmlBL(uint32_t clientId, uint16_t kind, const wchar_t* name, uint32_t index,
                          uint8_t* buffer, uint32_t* bufferLen)
{
    return RunExport("LogDeviceGetXmlBL: ", [&](const ExportFrame& frame) -> Result {
        // Ahead of the entry trace, which isn't so elsewhere.
        if (name == nullptr || buffer == nullptr || bufferLen == nullptr)
        {
            return frame.InvalidParameters();
        }
        NORV_TRACE(frame, TraceEntry, ">> LogDeviceGetXmlBL = %s, index = %d, bufferLen = %d",
                   TraceToAnsi(name), index, *bufferLen);

        std::wstring escaped;
        if (const Result result = EscapePath(WithoutStar(name).data(), escaped); result != PGSP_OK)
        {
            return result; // without an exit trace
        }
        const std::wstring strFullPath = FullPath(KindOf(kind), escaped);
        NORV_TRACE(frame, TraceEntry, ">> strFullPath = %s", TraceToAnsi(strFullPath.c_str()));

        Result result = index == 0 ? StoreFile(clientId, strFullPath) : PGSP_OK;
        if (result == PGSP_OK)
        {
            result = ReadPiece(clientId, strFullPath, index, buffer, bufferLen);
        }
        return frame.Return(result);
    });
}
