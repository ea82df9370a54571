#include "Sha256.h"

#include <windows.h>

#include <algorithm>
#include <bcrypt.h>
#include <cstddef>
#include <memory>
#include <stdexcept>

namespace norvctl
{

namespace
{

constexpr std::size_t Piece = 1U << 30U; // a length is 32 bits

void RequireSuccess(NTSTATUS status)
{
    if (status < 0)
    {
        throw std::runtime_error("the system refuses SHA-256");
    }
}

struct CloseAlgorithm
{
    void operator()(void* algorithm) const { BCryptCloseAlgorithmProvider(algorithm, 0); }
};
struct DestroyHash
{
    void operator()(void* hash) const { BCryptDestroyHash(hash); }
};
using Hash = std::unique_ptr<void, DestroyHash>;

BCRYPT_ALG_HANDLE Algorithm()
{
    static const std::unique_ptr<void, CloseAlgorithm> algorithm([] {
        BCRYPT_ALG_HANDLE opened = nullptr;
        RequireSuccess(BCryptOpenAlgorithmProvider(&opened, BCRYPT_SHA256_ALGORITHM, nullptr, 0));
        return opened;
    }());
    return algorithm.get();
}

Hash NewHash()
{
    BCRYPT_HASH_HANDLE hash = nullptr;
    RequireSuccess(BCryptCreateHash(Algorithm(), &hash, nullptr, 0, nullptr, 0, 0));
    return Hash(hash);
}

// Which the system takes by a pointer that it doesn't write through.
PUCHAR AsInput(std::string_view bytes)
{
    return reinterpret_cast<PUCHAR>(const_cast<char*>(bytes.data()));
}

} // namespace

Sha256Digest Sha256(std::string_view bytes)
{
    const Hash hash = NewHash();
    while (!bytes.empty())
    {
        const std::string_view piece = bytes.substr(0, Piece);
        RequireSuccess(BCryptHashData(hash.get(), AsInput(piece), static_cast<ULONG>(piece.size()), 0));
        bytes.remove_prefix(piece.size());
    }
    Sha256Digest digest{};
    RequireSuccess(BCryptFinishHash(hash.get(), digest.data(), static_cast<ULONG>(digest.size()), 0));
    return digest;
}

} // namespace norvctl
