#include "CatalogueScene.h"
#include "support/FreshThread.h"

namespace norvepa::test
{
namespace
{

class ProtocolArguments : public CatalogueScene
{
protected:
    // What each export answers for a protocol's name. Each is given the same lengths.
    [[nodiscard]] std::vector<std::int32_t> AskAll(const wchar_t* protocol, wchar_t* value,
                                                   const std::uint32_t* valueLength) const
    {
        const auto ask = [&](const auto& call) {
            std::uint32_t own = 300;
            const std::int32_t result = call(valueLength == nullptr ? nullptr : &own);
            EXPECT_TRUE(result == PGSP_OK || own == 300);
            return result;
        };
        return {
            ask([&](std::uint32_t* own) {
                return library.PGSP_ProtocolGetEnumBusprofilesBL(protocol, 0, value, own);
            }),
            ask([&](std::uint32_t* own) {
                return library.PGSP_ProtocolGetEnumBaudrateBL(protocol, nullptr, 0, value, own);
            }),
            ask([&](std::uint32_t* own) {
                return library.PGSP_ProtocolGetEnumBaudrateBL(protocol, L"3", 0, value, own);
            }),
            ask([&](std::uint32_t* own) {
                return library.PGSP_ProtocolGetValueBL(protocol, nullptr, nullptr, nullptr, nullptr,
                                                       L"CP_TYPE", value, own);
            }),
            ask([&](std::uint32_t* own) {
                return library.PGSP_ProtocolGetValueRawBL(protocol, nullptr, L"CP_TYPE", value, own);
            }),
            ask([&](std::uint32_t* own) {
                return library.PGSP_ProtocolGetValueRawBL(protocol, L"Constraints\\busparam\\3", L"slot",
                                                          value, own);
            }),
        };
    }

    // The four enumerations, likewise.
    [[nodiscard]] std::vector<std::int32_t> AskPairs(const wchar_t* protocol, wchar_t* name,
                                                     const std::uint32_t* nameLength, wchar_t* value,
                                                     const std::uint32_t* valueLength) const
    {
        const auto ask = [&](const Question& asked) {
            std::uint32_t ownName = 300;
            std::uint32_t ownValue = 300;
            const std::int32_t result = library.PGSP_ProtocolGetEnumValueBL(
                protocol, asked.parameter, asked.value, asked.subParameter, asked.subValue, 0, name,
                nameLength == nullptr ? nullptr : &ownName, value,
                valueLength == nullptr ? nullptr : &ownValue);
            EXPECT_TRUE(result == PGSP_OK || (ownName == 300 && ownValue == 300));
            return result;
        };
        return {ask({}), ask({L"busparam"}), ask({L"busparam", L"3"}),
                ask({L"busparam", L"3", L"baudrate", L"9600"})};
    }

    wchar_t buffer[300] = L"before";
    wchar_t other[300] = L"before";
    const std::uint32_t length = 300;
};

TEST_F(ProtocolArguments, WithoutAProtocolAreRefused)
{
    for (const wchar_t* const protocol : {static_cast<const wchar_t*>(nullptr), L""})
    {
        EXPECT_THAT(AskAll(protocol, buffer, &length), testing::Each(PGSP_ERR_INVALID_PARAMETERS));
        EXPECT_THAT(AskPairs(protocol, buffer, &length, other, &length),
                    testing::Each(PGSP_ERR_INVALID_PARAMETERS));
    }

    EXPECT_STREQ(buffer, L"before");
    EXPECT_STREQ(other, L"before");
}

TEST_F(ProtocolArguments, WithoutAnOutputAreRefused)
{
    WriteProtocol(L"X", BusProtocol());

    EXPECT_THAT(AskAll(L"X", nullptr, &length), testing::Each(PGSP_ERR_INVALID_PARAMETERS));
    EXPECT_THAT(AskAll(L"X", buffer, nullptr), testing::Each(PGSP_ERR_INVALID_PARAMETERS));
    EXPECT_THAT(AskPairs(L"X", nullptr, &length, other, &length), testing::Each(87));
    EXPECT_THAT(AskPairs(L"X", buffer, nullptr, other, &length), testing::Each(87));
    EXPECT_THAT(AskPairs(L"X", buffer, &length, nullptr, &length), testing::Each(87));
    EXPECT_THAT(AskPairs(L"X", buffer, &length, other, nullptr), testing::Each(87));
}

TEST_F(ProtocolArguments, AreTestedAheadOfTheFolder)
{
    TakeProgramFolderAway();

    EXPECT_THAT(AskAll(L"", buffer, &length), testing::Each(PGSP_ERR_INVALID_PARAMETERS));
    EXPECT_THAT(AskAll(L"X", nullptr, &length), testing::Each(PGSP_ERR_INVALID_PARAMETERS));
    EXPECT_THAT(AskAll(L"X", buffer, nullptr), testing::Each(PGSP_ERR_INVALID_PARAMETERS));
    EXPECT_THAT(AskPairs(L"", buffer, &length, other, &length), testing::Each(87));
}

TEST_F(ProtocolArguments, AreNotAllTestedAheadOfTheFolderInAnEnumeration)
{
    TakeProgramFolderAway();

    EXPECT_THAT(AskPairs(L"X", nullptr, nullptr, nullptr, nullptr), testing::Each(8517));
}

TEST_F(ProtocolArguments, LeadNowhereWithoutTheProgramFolder)
{
    WriteProtocol(L"X", BusProtocol());
    TakeProgramFolderAway();

    EXPECT_THAT(AskAll(L"X", buffer, &length), testing::Each(PGSP_ERR_FOLDER_NOT_FOUND));
    EXPECT_THAT(AskPairs(L"X", buffer, &length, other, &length), testing::Each(8517));

    EXPECT_STREQ(buffer, L"before");
    EXPECT_STREQ(other, L"before");
}

TEST_F(ProtocolArguments, NameAProtocolThatHasToBeThere)
{
    EXPECT_THAT(AskAll(L"gone", buffer, &length),
                testing::ElementsAre(PGSP_ERR_CANT_LOAD_XML_FILE, PGSP_ERR_CANT_LOAD_XML_FILE,
                                     PGSP_ERR_CANT_LOAD_XML_FILE, PGSP_ERR_CANT_LOAD_XML_FILE,
                                     PGSP_ERR_CANT_LOAD_XML_FILE, PGSP_ERR_FILE_NOT_FOUND));
    EXPECT_THAT(AskPairs(L"gone", buffer, &length, other, &length),
                testing::ElementsAre(PGSP_ERR_CANT_LOAD_XML_FILE, PGSP_ERR_CANT_LOAD_XML_FILE,
                                     PGSP_ERR_FILE_NOT_FOUND, PGSP_ERR_CANT_LOAD_XML_FILE));

    EXPECT_STREQ(buffer, L"before");
    EXPECT_STREQ(other, L"before");
}

TEST_F(ProtocolArguments, NeedComOnlyWhereADocumentIsLoaded)
{
    WriteProtocol(L"X", BusProtocol());

    OnFreshThread([&] {
        EXPECT_THAT(AskAll(L"X", buffer, &length), testing::ElementsAre(0, 0, 0, 0, 0, 8505));
        EXPECT_THAT(AskPairs(L"X", buffer, &length, other, &length), testing::ElementsAre(0, 0, 8505, 0));
    });
}

} // namespace
} // namespace norvepa::test
