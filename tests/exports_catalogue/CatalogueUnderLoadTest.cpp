#include "CatalogueScene.h"
#include "support/AllAtOnce.h"

#include <windows.h>
#include <objbase.h>

#include <atomic>
#include <functional>

namespace norvepa::test
{
namespace
{

constexpr int Threads = 8;
constexpr ULONGLONG Duration = 3'000; // milliseconds

class CatalogueUnderLoad : public CatalogueScene
{
protected:
    static constexpr int Boards = 4;
    static constexpr std::uint32_t Parameters = 6;

    CatalogueUnderLoad()
    {
        for (int board = 0; board < Boards; ++board)
        {
            WriteBytes(roots.board(Name(board)), BoardFile(Content(board), Name(board)));
        }
        WriteProtocol(L"X", BusProtocol());
    }

    [[nodiscard]] static std::wstring Name(int board) { return L"X" + std::to_wstring(board); }

    // Other values in each file: an answer from a wrong one is a wrong answer.
    [[nodiscard]] static std::wstring Value(int board, std::uint32_t number)
    {
        return std::to_wstring(board) + L" of " + std::to_wstring(number);
    }

    [[nodiscard]] static XmlContent Content(int board)
    {
        XmlContent entries;
        for (std::uint32_t i = 0; i < Parameters; ++i)
        {
            entries.Text(L"p" + std::to_wstring(i), Value(board, i));
        }
        const std::wstring first = Value(board, 0);
        const std::wstring second = Value(board, 1);
        return XmlContent()
            .Element(L"Install", entries)
            .Element(L"NotSupported", XmlContent().ValueCollection({first, second}))
            .Element(L"Constraints",
                     XmlContent().ParamSection(L"s", XmlContent().Element(L"default", first)));
    }

    // How many answers of all exports that read a board are wrong. An enumeration to its end drops the tree.
    [[nodiscard]] int WrongOfBoard(int board) const
    {
        const std::wstring name = Name(board);
        int wrong = 0;
        for (std::uint32_t i = 0; i < Parameters; ++i)
        {
            const std::wstring parameter = L"p" + std::to_wstring(i);
            wrong += BoardPair(name, i) != parameter + L"=" + Value(board, i);
            wrong += BoardValue(name, parameter) != Value(board, i);
        }
        wrong += BoardPair(name, Parameters + 2) != Failed(PGSP_ERR_NO_MORE_ITEMS);
        wrong += BoardPair(name + L"\\s", 0) != L"default=" + Value(board, 0);
        wrong += BoardPair(name + L"\\ConstraintsWithDefault", 0) != L"s=" + Value(board, 0);
        wrong += BoardValueRaw(name, L"Install", L"p1") != Value(board, 1);
        wrong += BoardValues(name, {L"DeviceID", L"p2"}) != Strings{name, Value(board, 2)};
        wrong += BoardCollection(L"NotSupported", name) != Strings{Value(board, 0), Value(board, 1)};
        return wrong;
    }

    [[nodiscard]] int WrongOfProtocol() const
    {
        const Question profile{L"busparam", L"User"};
        const Question subProfile{L"busparam", L"User", L"baudrate", L"9600"};
        int wrong = 0;
        wrong += ProtocolPair(L"X", {}, 1) != L"baudrate=187500";
        wrong += ProtocolPair(L"X", {L"busparam"}, 1) != L"type=int";
        wrong += ProtocolPair(L"X", profile, 0) != L"slot=103";
        wrong += ProtocolPair(L"X", subProfile, 1) != L"slot=9";
        wrong += Busprofile(L"X", 0) != L"0/DP";
        wrong += Baudrate(L"X", nullptr, 1) != L"1500000";
        wrong += Baudrate(L"X", L"3", 1) != L"19200";
        wrong += ProtocolValue(L"X", profile, L"slot") != L"103";
        wrong += ProtocolValue(L"X", subProfile, L"slot") != L"9";
        wrong += ProtocolValueRaw(L"X", L"Constraints\\busparam\\3", L"slot") != L"103";
        return wrong;
    }

    [[nodiscard]] int WrongOfFolders() const
    {
        ListBuffer boards(2000);
        int wrong = 0;
        wrong += library.PGSP_TemplateGetListBL(L"Boards", boards.data(), &boards.length) != PGSP_OK;
        wrong += boards.strings().size() != Boards;
        wrong += NameWithoutPrefix(L"Protocols", 0) != L"X";
        wrong += !NameWithoutPrefix(L"Boards", Boards - 1).starts_with(L"X");
        return wrong;
    }

    // Runs a body on all threads at once until the time is over; it is told thread and round.
    void Race(const std::function<void(int, int)>& body) const
    {
        const ULONGLONG begin = GetTickCount64();
        AllAtOnce(Threads, [&](int thread) {
            CoInitialize(nullptr);
            int round = 0;
            do
            {
                body(thread, round++);
            } while (GetTickCount64() - begin < Duration);
            CoUninitialize();
        });
    }
};

TEST_F(CatalogueUnderLoad, AnswersRightToAllThreadsWhateverTheyAsk)
{
    std::atomic<int> wrong = 0;

    Race([&](int thread, int round) {
        wrong += WrongOfBoard((thread + round) % Boards);
        wrong += WrongOfProtocol();
        wrong += WrongOfFolders();
    });

    EXPECT_EQ(wrong, 0);
}

TEST_F(CatalogueUnderLoad, AnswersRightThoughDeinitIsCalledMeanwhile)
{
    std::atomic<int> wrong = 0;

    Race([&](int thread, int round) {
        if (thread == 0)
        {
            library.NorvepaBl64x_deinit();
        }
        wrong += WrongOfBoard(round % Boards);
        wrong += WrongOfProtocol();
        wrong += WrongOfFolders();
    });

    EXPECT_EQ(wrong, 0);
}

TEST_F(CatalogueUnderLoad, KeepsEdgesExactForAllThreads)
{
    std::atomic<int> wrong = 0;
    const std::uint32_t needed = 2 * (static_cast<std::uint32_t>(Value(0, 0).size()) + 1) + 1;

    Race([&](int thread, int round) {
        const auto capacity = static_cast<std::uint32_t>(thread + round) % (needed + 3);
        ListBuffer values(capacity);
        const std::int32_t result = BoardCollection(L"NotSupported", Name(round % Boards), values);
        const std::int32_t expected = capacity >= needed       ? PGSP_OK
                                      : capacity + 1 == needed ? PGSP_ERR_NO_MORE_ITEMS
                                                               : PGSP_ERR_BUFFER_TOO_SHORT;
        wrong += result != expected;
        wrong += values.length != (expected == PGSP_ERR_NO_MORE_ITEMS ? capacity : needed);
    });

    EXPECT_EQ(wrong, 0);
}

} // namespace
} // namespace norvepa::test
