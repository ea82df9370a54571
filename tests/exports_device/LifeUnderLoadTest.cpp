#include "SetScene.h"
#include "support/AllAtOnce.h"
#include "support/OutputBuffer.h"

#include <windows.h>
#include <objbase.h>

#include <functional>
#include <mutex>
#include <set>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr int Threads = 4;
constexpr int Rounds = 5;
constexpr std::int32_t LinksFlag = 0; // the section UserInterface64
constexpr int AllNumbers = 255;

struct TemporaryName
{
    std::int32_t result = 0;
    std::wstring name;
};

// Each thread has log devices of its own; what they share is the folder, the numbers of the temporary ones,
// the template and the libraries of texts.
class LifeUnderLoad : public SetScene
{
protected:
    LifeUnderLoad()
    {
        CopyTree(FromUtf8(NORV_SAMPLE_RESOURCES), roots.program() + L"\\bin");
        WriteBytes(roots.deviceTemplate(L"MPI-AFK110"), LogDeviceFile(Content()));
    }

    [[nodiscard]] static XmlContent Content()
    {
        return XmlContent()
            .Element(L"Ndi", XmlContent().Bool(L"enable_delete", L"true"))
            .Element(L"UserInterface64", XmlContent().Resource({.name = L"DescText",
                                                                .assembly = L"AuentalTexte.dll",
                                                                .path = L"%commonpath%",
                                                                .resourceId = L"1005"}))
            .Element(L"SpareSection", XmlContent());
    }

    [[nodiscard]] TemporaryName MakeTemporary(const std::wstring& original) const
    {
        OutputBuffer name(28);
        const std::int32_t result =
            library.LogDeviceCreateTempBL(original.c_str(), name.data(), &name.length);
        return {result, result == PGSP_OK ? name.text() : L""};
    }

    [[nodiscard]] TemporaryName MakeTemporaryFromTemplate() const
    {
        OutputBuffer name(28);
        const std::int32_t result =
            library.LogDeviceCreateTempFromDefBL(L"MPI-AFK110", name.data(), &name.length);
        return {result, result == PGSP_OK ? name.text() : L""};
    }

    [[nodiscard]] std::wstring ValueOf(const std::wstring& logDevice, const wchar_t* parameter) const
    {
        OutputBuffer value(60);
        const std::int32_t result = library.LogDeviceGetValueExBL(logDevice.c_str(), L"SpareSection",
                                                                  parameter, value.data(), &value.length);
        return result == PGSP_OK ? value.text() : L"(result " + std::to_wstring(result) + L")";
    }

    [[nodiscard]] std::wstring TextOf(const std::wstring& logDevice, const wchar_t* language) const
    {
        OutputBuffer text(60);
        const std::int32_t result = library.PGSP_LogDeviceGetResourceStringBL(
            logDevice.c_str(), L"DescText", language, text.data(), &text.length, LinksFlag);
        return result == PGSP_OK ? text.text() : L"(result " + std::to_wstring(result) + L")";
    }

    // Leaves every nth of the temporary numbers, and answers the names that are free.
    [[nodiscard]] std::set<std::wstring> TakeAllNumbersBut(int nth) const
    {
        std::set<std::wstring> free;
        for (int number = 0; number < AllNumbers; ++number)
        {
            std::wstring digits = std::to_wstring(number);
            digits.insert(0, 3 - digits.size(), L'0');
            const std::wstring name = L"PGSP_TEMP_LOG_DEVICE____" + digits;
            if (number % nth == nth - 1)
            {
                free.insert(name);
                continue;
            }
            store.WriteDevice(name, XmlContent());
        }
        return free;
    }

    // From the template to the deletion, through a copy that is changed aside and swapped in.
    void LiveOnce(const std::wstring& device, const std::wstring& value) const
    {
        const std::wstring copy = device + L" (copy)";
        EXPECT_EQ(library.LogDeviceCreateFromDefBL(L"MPI-AFK110", device.c_str()), PGSP_OK);
        EXPECT_EQ(library.LogDeviceCreateFromDefBL(L"MPI-AFK110", device.c_str()), PGSP_ERR_CANT_COPY_FILE);
        EXPECT_EQ(library.LogDeviceCopyBL(device.c_str(), copy.c_str()), PGSP_OK);

        const TemporaryName temporary = MakeTemporary(copy);
        EXPECT_EQ(temporary.result, PGSP_OK);
        EXPECT_EQ(library.LogDeviceSetValueBL(temporary.name.c_str(), L"Ort", value.c_str()), PGSP_OK);
        EXPECT_EQ(library.PGSP_LogDeviceSetNdiBL(temporary.name.c_str(), L"DescText", L"1006", LinksFlag),
                  PGSP_OK);
        EXPECT_EQ(library.LogDeviceUpdateWithTempBL(temporary.name.c_str(), copy.c_str()), PGSP_OK);

        EXPECT_EQ(ValueOf(copy, L"Ort"), value);
        EXPECT_EQ(TextOf(copy, L"en"), L"Bag filling 25 kg");
        EXPECT_EQ(TextOf(device, L"de"), L"Schnitzelpresse 3");
        EXPECT_EQ(TextOf(device, L"fr"), L"Pulp press 3"); // for want of it
        EXPECT_EQ(library.LogDeviceDelBL(device.c_str(), 0), PGSP_OK);
        EXPECT_EQ(library.LogDeviceDelBL(copy.c_str(), 0), PGSP_OK);
    }

    // Runs a body on all threads at once, with COM.
    static void Race(const std::function<void(int)>& body)
    {
        AllAtOnce(Threads, [&](int thread) {
            CoInitialize(nullptr);
            body(thread);
            CoUninitialize();
        });
    }
};

TEST_F(LifeUnderLoad, IsThatOfEachDeviceAlone)
{
    Race([&](int thread) {
        for (int round = 0; round < Rounds; ++round)
        {
            LiveOnce(L"Anlage " + std::to_wstring(thread), std::to_wstring(thread * Rounds + round));
        }
    });

    EXPECT_THAT(Files(), IsEmpty());
}

// A number is claimed by one of them and is free again behind its removal.
TEST_F(LifeUnderLoad, NeverGivesOneTemporaryNumberTwice)
{
    store.WriteDevice(L"Presse", Content());
    std::mutex mutex;
    std::set<std::wstring> held;

    Race([&](int thread) {
        const std::wstring mine = std::to_wstring(thread);
        for (int round = 0; round < Rounds; ++round)
        {
            const TemporaryName made =
                thread % 2 == 0 ? MakeTemporary(L"Presse") : MakeTemporaryFromTemplate();
            EXPECT_EQ(made.result, PGSP_OK);
            {
                const std::scoped_lock lock(mutex);
                EXPECT_TRUE(held.insert(made.name).second) << ToUtf8(made.name);
            }
            EXPECT_EQ(library.LogDeviceSetValueBL(made.name.c_str(), L"Ort", mine.c_str()), PGSP_OK);
            EXPECT_EQ(ValueOf(made.name, L"Ort"), mine);
            const std::scoped_lock lock(mutex); // over both, or who gets it next may be told of first
            EXPECT_EQ(library.LogDeviceDelTempBL(made.name.c_str()), PGSP_OK);
            held.erase(made.name);
        }
    });

    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

// Together they get all that are free, and each of them once.
TEST_F(LifeUnderLoad, LosesNoTemporaryNumber)
{
    store.WriteDevice(L"Presse", Content());
    const std::set<std::wstring> free = TakeAllNumbersBut(16);
    std::mutex mutex;
    std::multiset<std::wstring> got;

    Race([&](int) {
        for (TemporaryName made = MakeTemporary(L"Presse"); made.result != PGSP_CANT_CREATE_TEMP_LOG_DEVICE;
             made = MakeTemporary(L"Presse"))
        {
            EXPECT_EQ(made.result, PGSP_OK);
            const std::scoped_lock lock(mutex);
            got.insert(made.name);
        }
    });

    EXPECT_THAT(got, ElementsAreArray(free));
}

} // namespace
} // namespace norvepa::test
