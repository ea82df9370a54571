#include "Cabinet.h"
#include "CabinetStreams.h"

#include <windows.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fci.h>
#include <fmt/format.h>
#include <memory>
#include <stdexcept>

namespace norvctl
{

namespace
{

constexpr char CabinetName[] = "cabinet";
constexpr ULONG NoLimit = 0x7fffffff; // bytes; the whole is one cabinet, and in it one stretch of data

struct Packing
{
    CabinetStreams streams;
    const MemberToPack* member = nullptr; // the present one
    unsigned temporaries = 0;
};

Packing& Of(void* context)
{
    return *static_cast<Packing*>(context);
}

template <typename Answer>
Answer Told(Answer answer, int* error)
{
    *error = answer == static_cast<Answer>(-1) ? EIO : 0;
    return answer;
}

void* DIAMONDAPI Allocate(ULONG size)
{
    return std::malloc(size); // NOLINT(cppcoreguidelines-no-malloc) the system's own functions free it
}

void DIAMONDAPI Free(void* memory)
{
    std::free(memory); // NOLINT(cppcoreguidelines-no-malloc)
}

INT_PTR DIAMONDAPI Open(char* name, int /*how*/, int /*mode*/, int* error, void* context)
{
    return Told(Of(context).streams.Open(name), error);
}

UINT DIAMONDAPI Read(INT_PTR file, void* bytes, UINT count, int* error, void* context)
{
    return Told(Of(context).streams.Read(file, bytes, count), error);
}

UINT DIAMONDAPI Write(INT_PTR file, void* bytes, UINT count, int* error, void* context)
{
    return Told(Of(context).streams.Write(file, bytes, count), error);
}

int DIAMONDAPI Close(INT_PTR file, int* error, void* context)
{
    return Told(Of(context).streams.Close(file), error);
}

long DIAMONDAPI Seek(INT_PTR file, long distance, int from, int* error, void* context)
{
    return Told(Of(context).streams.Seek(file, distance, from), error);
}

int DIAMONDAPI Remove(char* name, int* error, void* context)
{
    return Told(Of(context).streams.Remove(name), error);
}

BOOL DIAMONDAPI NameTemporary(char* name, int size, void* context)
{
    const auto end =
        fmt::format_to_n(name, static_cast<std::size_t>(size) - 1, "temporary {}", ++Of(context).temporaries);
    *end.out = '\0';
    return TRUE;
}

// Of Windows 3.1: what explorers show. The backup's own list has the times as they are.
void TellDosTime(std::uint64_t writeTime, USHORT* date, USHORT* time)
{
    const FILETIME utc{static_cast<DWORD>(writeTime), static_cast<DWORD>(writeTime >> 32U)};
    FILETIME local{};
    if (!FileTimeToLocalFileTime(&utc, &local) || !FileTimeToDosDateTime(&local, date, time))
    {
        constexpr USHORT firstOfJanuary1980 = 1U << 5U | 1U;
        *date = firstOfJanuary1980;
        *time = 0;
    }
}

INT_PTR DIAMONDAPI OpenMember(char* /*name*/, USHORT* date, USHORT* time, USHORT* attributes, int* error,
                              void* context)
{
    constexpr std::uint32_t kept =
        FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE;
    const MemberToPack& member = *Of(context).member;
    TellDosTime(member.writeTime, date, time);
    *attributes = static_cast<USHORT>((member.attributes & kept) | _A_NAME_IS_UTF);
    return Told(Of(context).streams.Open(member.bytes), error);
}

int DIAMONDAPI Placed(PCCAB /*cabinet*/, char* /*file*/, long /*size*/, BOOL /*continues*/, void* /*context*/)
{
    return 0;
}

long DIAMONDAPI Status(UINT /*what*/, ULONG /*first*/, ULONG /*second*/, void* /*context*/)
{
    return 0;
}

BOOL DIAMONDAPI NextCabinet(PCCAB /*cabinet*/, ULONG /*size*/, void* /*context*/)
{
    return FALSE; // there is but one
}

struct DestroyPacker
{
    void operator()(void* packer) const { FCIDestroy(packer); }
};
using Packer = std::unique_ptr<void, DestroyPacker>;

void RequirePacked(bool done, const ERF& error)
{
    if (!done)
    {
        throw std::runtime_error(
            fmt::format("the system cannot pack it ({}, {})", error.erfOper, error.erfType));
    }
}

void RequireLimits(const std::vector<MemberToPack>& members)
{
    std::size_t size = 0;
    for (const MemberToPack& member : members)
    {
        size += member.bytes.size();
    }
    if (members.size() > MostCabinetMembers || size > LargestCabinet)
    {
        throw std::runtime_error(
            fmt::format("{} files of {} bytes are more than an archive takes", members.size(), size));
    }
}

} // namespace

std::string PackCabinet(const std::vector<MemberToPack>& members,
                        const std::function<void(std::size_t)>& tell)
{
    RequireLimits(members);
    Packing packing;
    ERF error{};
    CCAB cabinet{};
    cabinet.cb = NoLimit;
    cabinet.cbFolderThresh = NoLimit;
    std::ranges::copy(CabinetName, cabinet.szCab);
    const Packer packer(FCICreate(&error, Placed, Allocate, Free, Open, Read, Write, Close, Seek, Remove,
                                  NameTemporary, &cabinet, &packing));
    RequirePacked(packer != nullptr, error);
    for (const MemberToPack& member : members)
    {
        tell(static_cast<std::size_t>(&member - members.data()));
        packing.member = &member;
        std::string name = member.name; // which the system takes by a pointer that it doesn't write through
        const BOOL added = FCIAddFile(packer.get(), name.data(), name.data(), FALSE, NextCabinet, Status,
                                      OpenMember, tcompTYPE_MSZIP);
        RequirePacked(added != FALSE, error);
    }
    RequirePacked(FCIFlushCabinet(packer.get(), FALSE, NextCabinet, Status) != FALSE, error);
    return packing.streams.Take(CabinetName);
}

} // namespace norvctl
