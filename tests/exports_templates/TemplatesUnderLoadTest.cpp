#include "TemplateScene.h"
#include "support/AllAtOnce.h"
#include "support/Registrant.h"

#include <atomic>

namespace norvepa::test
{
namespace
{

constexpr int Threads = 6;
constexpr int Rounds = 40;

class TemplatesUnderLoad : public TemplateScene
{
protected:
    TemplatesUnderLoad()
    {
        const XmlContent words = XmlContent().Element(L"type", L"int").ValueCollection({L"1", L"2"});
        WriteBoard(L"shared", XmlContent().Element(L"Constraints", XmlContent().ParamSection(L"p", words)));
        for (int thread = 0; thread < Threads; ++thread)
        {
            WriteTemplate(Name(thread),
                          XmlContent()
                              .Element(L"LocalSettings", XmlContent().Text(L"own", Name(thread)))
                              .Element(L"Ndi", XmlContent().Text(L"a", L"before")));
        }
    }

    [[nodiscard]] static std::wstring Name(int thread) { return L"X" + std::to_wstring(thread); }

    // How many answers on what all threads ask for are wrong.
    [[nodiscard]] int WrongOfShared() const
    {
        int wrong = 0;
        wrong += Exist(L"Boards", L"*shared") != PGSP_OK;
        wrong += KeyExists(L"Boards", L"SHARED", L"Constraints\\p") != PGSP_OK;
        wrong += KeyExists(L"Boards", L"shared", L"Constraints\\q") != PGSP_ERR_PARAM_NOT_FOUND;
        wrong += Item(L"Boards", L"shared", L"Constraints\\p", 1) != L"2";
        wrong += Constraint(L"Boards", L"shared", L"p", L"type") != L"int";
        wrong += FileName(L"Boards", 0) != BoardPrefix + L"shared";
        return wrong;
    }

    // The same on a template that one thread alone changes; an enumeration to its end drops the tree.
    [[nodiscard]] int WrongOfTemplate(const std::wstring& name, const std::wstring& value) const
    {
        int wrong = 0;
        wrong += Set(L"DefaultLogDevices", name, L"a", value) != PGSP_OK;
        wrong += DeviceValue(name, L"a") != value;
        wrong += DeviceValueRaw(name, L"Ndi", L"a") != value;
        wrong += DeviceValueRaw(name, nullptr, L"CP_TYPE") != L"MPI";
        wrong += DevicePair(name, 0) != L"own=" + name;
        wrong += DevicePair(name, 99) != Failed(PGSP_ERR_NO_MORE_ITEMS);
        return wrong;
    }

    const Workers workers{library.module()};
};

TEST_F(TemplatesUnderLoad, AnswerEveryThreadAsIfItWereAlone)
{
    const Registrant last{library, workers, L"meta", L"X5"};
    std::atomic<int> wrong = 0;

    AllAtOnce(Threads, [&](int thread) {
        for (int round = 0; round < Rounds; ++round)
        {
            wrong += WrongOfShared();
            wrong += WrongOfTemplate(Name(thread), L"round " + std::to_wstring(round));
        }
    });

    EXPECT_EQ(wrong, 0);
    EXPECT_TRUE(last.IsTold());
    EXPECT_EQ(workers.count(), static_cast<std::size_t>(Threads * Rounds));
}

} // namespace
} // namespace norvepa::test
