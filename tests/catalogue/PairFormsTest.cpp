#include "catalogue/BufferForms.h"
#include "catalogue/CatalogueScene.h"
#include "catalogue/EveryQuestion.h"
#include "support/OutputBuffer.h"

#include <cstring>

namespace norvepa::test
{
namespace
{

struct OutputPair
{
    OutputPair(std::size_t nameCapacity, std::size_t valueCapacity)
        : name(static_cast<std::uint32_t>(nameCapacity)), value(static_cast<std::uint32_t>(valueCapacity))
    {
    }

    [[nodiscard]] PairBuffers buffers() { return {name.data(), &name.length, value.data(), &value.length}; }

    OutputBuffer name;
    OutputBuffer value;
};

// Queries that answer into two buffers.
class PairFormsTest : public CatalogueScene
{
protected:
    const std::wstring m_path = File(FileAnswering(L"Größe"));
};

TEST_F(PairFormsTest, CopyBothAndTellTheirLengths)
{
    for (const PairForm& form : PairForms())
    {
        SCOPED_TRACE(form.name);
        OutputPair out(form.answerName.size() + 1, 6);

        EXPECT_EQ(form.ask(m_path.c_str(), out.buffers()), PGSP_OK);

        EXPECT_EQ(out.name.text(), form.answerName);
        EXPECT_EQ(out.name.length, form.answerName.size());
        EXPECT_EQ(out.value.text(), L"Größe");
        EXPECT_EQ(out.value.length, 5u);
    }
}

TEST_F(PairFormsTest, LeaveTheValueAloneWhenTheNameDoesNotFit)
{
    for (const PairForm& form : PairForms())
    {
        SCOPED_TRACE(form.name);
        OutputPair out(form.answerName.size(), 100);

        EXPECT_EQ(form.ask(m_path.c_str(), out.buffers()), PGSP_ERR_BUFFER_TOO_SHORT);

        EXPECT_TRUE(out.name.isUntouched());
        EXPECT_EQ(out.name.length, form.answerName.size());
        EXPECT_TRUE(out.value.isUntouched());
        EXPECT_EQ(out.value.length, 100u);
    }
}

TEST_F(PairFormsTest, DeliverTheNameWhenOnlyTheValueDoesNotFit)
{
    for (const PairForm& form : PairForms())
    {
        SCOPED_TRACE(form.name);
        OutputPair out(100, 5);

        EXPECT_EQ(form.ask(m_path.c_str(), out.buffers()), PGSP_ERR_BUFFER_TOO_SHORT);

        EXPECT_EQ(out.name.text(), form.answerName);
        EXPECT_EQ(out.name.length, form.answerName.size());
        EXPECT_TRUE(out.value.isUntouched());
        EXPECT_EQ(out.value.length, 5u);
    }
}

TEST_F(PairFormsTest, CanBeAskedAgainWithTheLengthsThatTheyTold)
{
    for (const PairForm& form : PairForms())
    {
        SCOPED_TRACE(form.name);
        OutputPair first(1, 100);
        ASSERT_EQ(form.ask(m_path.c_str(), first.buffers()), PGSP_ERR_BUFFER_TOO_SHORT);
        OutputPair second(first.name.length + 1, 1);
        ASSERT_EQ(form.ask(m_path.c_str(), second.buffers()), PGSP_ERR_BUFFER_TOO_SHORT);
        OutputPair third(first.name.length + 1, second.value.length + 1);

        EXPECT_EQ(form.ask(m_path.c_str(), third.buffers()), PGSP_OK);

        EXPECT_EQ(third.name.text(), form.answerName);
        EXPECT_EQ(third.value.text(), L"Größe");
    }
}

TEST_F(PairFormsTest, TakeACapacityOfZeroForTooShortButEnumValueDoesNotTakeIt)
{
    for (const PairForm& form : PairForms())
    {
        SCOPED_TRACE(form.name);
        const bool isEnumValue = std::strcmp(form.name, "EnumValue") == 0;
        OutputPair noName(0, 100);
        OutputPair noValue(100, 0);
        const Result expected = isEnumValue ? PGSP_ERR_INVALID_PARAMETERS : PGSP_ERR_BUFFER_TOO_SHORT;

        EXPECT_EQ(form.ask(m_path.c_str(), noName.buffers()), expected);
        EXPECT_EQ(form.ask(m_path.c_str(), noValue.buffers()), expected);

        EXPECT_EQ(noName.name.length, isEnumValue ? 0u : form.answerName.size());
        EXPECT_EQ(noValue.value.length, isEnumValue ? 0u : 5u);
        EXPECT_EQ(noValue.name.isUntouched(), isEnumValue);
    }
}

TEST_F(PairFormsTest, LeaveEverythingWhenThereIsNoAnswer)
{
    const std::wstring silent = File(SilentFile(), L"silent");
    const std::wstring missing = folder() / L"missing";

    for (const PairForm& form : PairForms())
    {
        SCOPED_TRACE(form.name);
        OutputPair out(100, 100);

        EXPECT_NE(form.ask(silent.c_str(), out.buffers()), PGSP_OK);
        EXPECT_NE(form.ask(missing.c_str(), out.buffers()), PGSP_OK);

        EXPECT_TRUE(out.name.isUntouched() && out.value.isUntouched());
        EXPECT_EQ(out.name.length, 100u);
        EXPECT_EQ(out.value.length, 100u);
    }
}

TEST_F(PairFormsTest, NeedPathAndBuffers)
{
    for (const PairForm& form : PairForms())
    {
        SCOPED_TRACE(form.name);
        OutputPair out(100, 100);
        PairBuffers noName = out.buffers();
        noName.name = nullptr;
        PairBuffers noValue = out.buffers();
        noValue.value = nullptr;

        EXPECT_EQ(form.ask(nullptr, out.buffers()), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(form.ask(L"", out.buffers()), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(form.ask(m_path.c_str(), noName), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(form.ask(m_path.c_str(), noValue), PGSP_ERR_INVALID_PARAMETERS);

        EXPECT_TRUE(out.name.isUntouched() && out.value.isUntouched());
    }
}

TEST_F(PairFormsTest, TellAMissingLengthByTheirOwnCode)
{
    for (const PairForm& form : PairForms())
    {
        SCOPED_TRACE(form.name);
        OutputPair out(100, 100);
        PairBuffers noNameLength = out.buffers();
        noNameLength.nameLength = nullptr;
        PairBuffers noValueLength = out.buffers();
        noValueLength.valueLength = nullptr;

        EXPECT_EQ(form.ask(m_path.c_str(), noNameLength), form.withoutLength);
        EXPECT_EQ(form.ask(m_path.c_str(), noValueLength), form.withoutLength);
        EXPECT_EQ(form.ask(nullptr, noNameLength), form.withoutLength) << "tested ahead of the path";

        EXPECT_TRUE(out.name.isUntouched() && out.value.isUntouched());
    }
}

} // namespace
} // namespace norvepa::test
