#include "xml/ByteStream.h"

#include <gmock/gmock.h>
#include <string>

namespace norvepa::test
{
namespace
{

// What a reading of so many bytes gives, and what it answers.
struct Piece
{
    std::string bytes;
    HRESULT status = S_OK;

    bool operator==(const Piece&) const = default;
};

Piece Next(ByteStream& stream, std::size_t size)
{
    std::string bytes(size + 1, '#');
    ULONG read = 0;
    const HRESULT status = stream.Read(bytes.data(), static_cast<ULONG>(size), &read);
    EXPECT_EQ(bytes.substr(read), std::string(size + 1 - read, '#')); // nothing behind what was read
    return {bytes.substr(0, read), status};
}

TEST(ByteStreamTest, GivesItsBytesInPieces)
{
    ByteStream stream("abcdefg");

    EXPECT_EQ(Next(stream, 3), (Piece{"abc", S_OK}));
    EXPECT_EQ(Next(stream, 3), (Piece{"def", S_OK}));
    EXPECT_EQ(Next(stream, 3), (Piece{"g", S_FALSE}));
    EXPECT_EQ(Next(stream, 3), (Piece{"", S_FALSE}));
}

TEST(ByteStreamTest, GivesAllThatIsAskedForAtOnce)
{
    ByteStream stream("abc");

    EXPECT_EQ(Next(stream, 3), (Piece{"abc", S_OK}));
    EXPECT_EQ(Next(stream, 1), (Piece{"", S_FALSE}));
}

TEST(ByteStreamTest, GivesNothingWhenNothingIsAskedFor)
{
    ByteStream stream("abc");

    EXPECT_EQ(Next(stream, 0), (Piece{"", S_OK}));
    EXPECT_EQ(Next(stream, 9), (Piece{"abc", S_FALSE}));
}

TEST(ByteStreamTest, GivesBytesOfEveryKind)
{
    const std::string bytes("\0\xFF\r\n\x1A", 5);
    ByteStream stream(bytes);

    EXPECT_EQ(Next(stream, 9), (Piece{bytes, S_FALSE}));
}

TEST(ByteStreamTest, NeedNotTellHowManyItHasGiven)
{
    ByteStream stream("abc");
    char bytes[2] = {};

    EXPECT_EQ(stream.Read(bytes, 2, nullptr), S_OK);

    EXPECT_EQ(std::string(bytes, 2), "ab");
    EXPECT_EQ(Next(stream, 9), (Piece{"c", S_FALSE}));
}

TEST(ByteStreamTest, TakesNothing)
{
    ByteStream stream("abc");
    ULONG written = 0;

    EXPECT_EQ(stream.Write("x", 1, &written), STG_E_ACCESSDENIED);

    EXPECT_EQ(Next(stream, 9), (Piece{"abc", S_FALSE}));
}

TEST(ByteStreamTest, IsAStreamByItsInterfacesAndLivesOnItsOwn)
{
    ByteStream stream("abc");
    void* object = nullptr;

    EXPECT_EQ(stream.QueryInterface(__uuidof(ISequentialStream), &object), S_OK);
    EXPECT_EQ(object, static_cast<ISequentialStream*>(&stream));
    EXPECT_EQ(stream.QueryInterface(__uuidof(IUnknown), &object), S_OK);
    EXPECT_EQ(stream.QueryInterface(__uuidof(IStream), &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    stream.AddRef();
    stream.Release();
    stream.Release();
    EXPECT_EQ(Next(stream, 9), (Piece{"abc", S_FALSE}));
}

} // namespace
} // namespace norvepa::test
