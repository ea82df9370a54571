#include "handover/OutlineScene.h"
#include "support/GuardedBytes.h"
#include "support/TemporaryFolder.h"

#include <random>
#include <vector>

namespace norvepa::test
{
namespace
{

using namespace std::string_view_literals;

// What is put into a document: mostly a byte or two, so that many a document stays well-formed.
const std::vector<std::string_view> Pieces{"<"sv,
                                           ">"sv,
                                           "/"sv,
                                           "&"sv,
                                           "\""sv,
                                           "'"sv,
                                           " "sv,
                                           "\t"sv,
                                           "\n"sv,
                                           "\r"sv,
                                           "="sv,
                                           "-"sv,
                                           "!"sv,
                                           "?"sv,
                                           ";"sv,
                                           "#"sv,
                                           ":"sv,
                                           "P"sv,
                                           "x"sv,
                                           "\0"sv,
                                           "\xC3"sv,
                                           "\xA4"sv,
                                           "ä"sv,
                                           "\uFEFF"sv,
                                           "\u2028"sv,
                                           "&lt;"sv,
                                           "&amp;"sv,
                                           "&#10;"sv,
                                           "&auml;"sv,
                                           "<!--"sv,
                                           "-->"sv,
                                           "<!-- -->"sv,
                                           "<!-->"sv,
                                           "<!--->"sv,
                                           "<?p ?>"sv,
                                           "<?Name"sv,
                                           "?>"sv,
                                           "<![CDATA["sv,
                                           "]]>"sv,
                                           "<x/>"sv,
                                           "<x>"sv,
                                           "</x>"sv,
                                           "<Load>"sv,
                                           "<Load/>"sv,
                                           "</Load>"sv,
                                           "<Name>"sv,
                                           "</Name>"sv,
                                           "<Value/>"sv,
                                           "<Parameter/>"sv,
                                           "<Parameter>"sv,
                                           "</Parameter>"sv,
                                           "<ParameterInt>"sv,
                                           "</ParameterInt>"sv,
                                           " xml:space='default'"sv,
                                           " SubdevName='y'"sv,
                                           " p:SubdevName=\"\""sv,
                                           "<!DOCTYPE d>"sv};

// A device with something of everything.
constexpr char SmallDevice[] =
    "\uFEFF<?xml version='1.0' encoding='UTF-8'?>\r\n"
    "<!-- by hand -->\n<d xmlns='urn:d' xmlns:p='urn:p'>\r\n"
    "<S a='1>'><Parameter><Name>Größe</Name><Value> a &lt; b </Value></Parameter>\n"
    "<ParameterInt><Value>5</Value><Name>n</Name></ParameterInt></S>"
    "<Bindings><ParameterBool><Name>b</Name><Value>true</Value><Unit/></ParameterBool>"
    "<!-- <Load> --><Subdevices><Subdevice p:a='z' SubdevName='x &amp; y'>"
    "<Parameter><Name/><Value></Value></Parameter></Subdevice></Subdevices>"
    "<Parameter><Name>m</Name></Parameter></Bindings>"
    "<Load>\r\n<section>S</section><section>Bindings</section></Load></d>\n";

std::string SampleDevice()
{
    return ReadBytes(FromUtf8(NORV_SAMPLE_STORE) + L"\\data-root\\data\\LogDevices\\Presse(nmbr)3.xml");
}

class OutlineDamage : public OutlineScene
{
protected:
    // Some places of a document replaced, removed or inserted at, differently with each call.
    [[nodiscard]] std::string Damaged(std::string bytes)
    {
        for (std::size_t left = 1 + m_random() % 3; left > 0; --left)
        {
            const std::size_t at = m_random() % bytes.size();
            const std::size_t lost = m_random() % 3 == 0 ? m_random() % 12 : m_random() % 2;
            const bool isLossOnly = m_random() % 4 == 0;
            bytes.replace(at, lost, isLossOnly ? ""sv : Pieces[m_random() % Pieces.size()]);
        }
        return bytes;
    }

    // A piece of a document put elsewhere as well.
    [[nodiscard]] std::string Doubled(std::string bytes)
    {
        const std::size_t from = bytes.find('<', m_random() % bytes.size());
        const std::size_t to = bytes.find('<', m_random() % bytes.size());
        if (from == std::string::npos || to == std::string::npos)
        {
            return bytes;
        }
        const std::size_t end = bytes.find('<', from + m_random() % 80);
        return bytes.insert(to, bytes.substr(from, end - from));
    }

    // True when the bytes were read, as the engine reads them.
    bool IsReadAlike(const std::string& bytes)
    {
        const OutlineLine line = ByTheBytes(m_guarded.Copy(bytes));
        const OutlineLine engineLine = ByTheEngine(bytes);
        if (!line || !engineLine)
        {
            return false;
        }
        EXPECT_EQ(line, engineLine) << bytes;
        return line == engineLine;
    }

    [[nodiscard]] GuardedBytes& guarded() { return m_guarded; }

private:
    GuardedBytes m_guarded{16'384};
    std::mt19937 m_random{20'260'105};
};

TEST_F(OutlineDamage, ToASmallDeviceIsReadAlikeOrNotAtAll)
{
    int read = 0;
    for (int number = 0; number < 8'000 && !HasFailure(); ++number)
    {
        read += IsReadAlike(Damaged(SmallDevice)) ? 1 : 0;
    }

    EXPECT_GT(read, 300);
}

TEST_F(OutlineDamage, ToASampleDeviceIsReadAlikeOrNotAtAll)
{
    const std::string device = SampleDevice();

    int read = 0;
    for (int number = 0; number < 2'000 && !HasFailure(); ++number)
    {
        read += IsReadAlike(Damaged(device)) ? 1 : 0;
    }

    EXPECT_GT(read, 100);
}

TEST_F(OutlineDamage, ByTagsInOtherPlacesIsReadAlikeOrNotAtAll)
{
    int read = 0;
    for (int number = 0; number < 8'000 && !HasFailure(); ++number)
    {
        read += IsReadAlike(Doubled(SmallDevice)) ? 1 : 0;
    }

    EXPECT_GT(read, 300);
}

TEST_F(OutlineDamage, ByALossOfTheRestIsNotReadBeyondTheEnd)
{
    for (const std::string& device : {std::string(SmallDevice), SampleDevice()})
    {
        for (std::size_t size = 0; size < device.size(); ++size)
        {
            (void)ByTheBytes(guarded().Copy(std::string_view(device).substr(0, size)));
        }
    }
}

TEST_F(OutlineDamage, ByALossOfTheBeginningIsNotReadBeyondTheEnd)
{
    const std::string_view device = SmallDevice;
    for (std::size_t begin = 0; begin < device.size(); ++begin)
    {
        for (std::size_t size = 0; begin + size < device.size(); size += 1 + size / 8)
        {
            (void)ByTheBytes(guarded().Copy(device.substr(begin, size)));
        }
    }
}

} // namespace
} // namespace norvepa::test
