#include "Cabinet.h"
#include "CabinetStreams.h"

#include <windows.h>

#include <cstdlib>
#include <cstring>
#include <fdi.h>
#include <memory>
#include <stdexcept>

namespace norvctl
{

namespace
{

constexpr char CabinetName[] = "cabinet";

struct Unpacking
{
    CabinetStreams streams;
    std::string_view cabinet;
    std::vector<UnpackedMember> members;
    std::size_t size = 0; // of all members, as the cabinet tells it
};

// The functions below are given no context.
thread_local Unpacking* present = nullptr;

class Presence
{
public:
    explicit Presence(Unpacking& unpacking) { present = &unpacking; }
    Presence(const Presence&) = delete;
    Presence& operator=(const Presence&) = delete;
    ~Presence() { present = nullptr; }
};

void* DIAMONDAPI Allocate(ULONG size)
{
    return std::calloc(1, size); // NOLINT(cppcoreguidelines-no-malloc) the system's own functions free it
}

void DIAMONDAPI Free(void* memory)
{
    std::free(memory); // NOLINT(cppcoreguidelines-no-malloc)
}

// A cabinet may name others.
INT_PTR DIAMONDAPI Open(char* name, int /*how*/, int /*mode*/)
{
    return std::strcmp(name, CabinetName) == 0 ? present->streams.Open(present->cabinet) : -1;
}

UINT DIAMONDAPI Read(INT_PTR file, void* bytes, UINT count)
{
    return present->streams.Read(file, bytes, count);
}

UINT DIAMONDAPI Write(INT_PTR file, void* bytes, UINT count)
{
    return present->streams.Write(file, bytes, count);
}

int DIAMONDAPI Close(INT_PTR file)
{
    return present->streams.Close(file);
}

long DIAMONDAPI Seek(INT_PTR file, long distance, int from)
{
    return present->streams.Seek(file, distance, from);
}

constexpr INT_PTR Break = -1;

// What is told of a size is believed up to the limit only: a few bytes may be packed for very many.
INT_PTR BeginMember(const FDINOTIFICATION& member) noexcept
try
{
    if (member.cb < 0 || present->members.size() >= MostCabinetMembers)
    {
        return Break;
    }
    present->size += static_cast<std::size_t>(member.cb);
    if (present->size > LargestCabinet)
    {
        return Break;
    }
    // Which a growing list may move while it is written: its memory is asked for ahead of that.
    present->members.reserve(MostCabinetMembers);
    present->members.push_back({member.psz1, {}});
    return present->streams.Open(present->members.back().bytes);
}
catch (...)
{
    return Break;
}

INT_PTR DIAMONDAPI Notify(FDINOTIFICATIONTYPE type, PFDINOTIFICATION notification)
{
    switch (type)
    {
    case fdintCOPY_FILE:
        return BeginMember(*notification);
    case fdintCLOSE_FILE_INFO:
        return present->streams.Close(notification->hf) == 0 ? TRUE : FALSE;
    case fdintPARTIAL_FILE:
    case fdintNEXT_CABINET:
        return Break;
    default:
        return 0;
    }
}

struct DestroyUnpacker
{
    void operator()(void* unpacker) const { FDIDestroy(unpacker); }
};

} // namespace

std::vector<UnpackedMember> UnpackCabinet(std::string_view bytes)
{
    Unpacking unpacking;
    unpacking.cabinet = bytes;
    const Presence presence(unpacking);
    ERF error{};
    const std::unique_ptr<void, DestroyUnpacker> unpacker(
        FDICreate(Allocate, Free, Open, Read, Write, Close, Seek, cpuUNKNOWN, &error));
    std::string name = CabinetName;
    std::string folder;
    if (unpacker == nullptr || bytes.size() > LargestCabinet ||
        !FDICopy(unpacker.get(), name.data(), folder.data(), 0, Notify, nullptr, nullptr))
    {
        throw std::runtime_error("it cannot be unpacked");
    }
    return std::move(unpacking.members);
}

} // namespace norvctl
