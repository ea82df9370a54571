#include "catalogue/BufferForms.h"
#include "catalogue/CatalogueScene.h"
#include "catalogue/EveryQuestion.h"
#include "support/OutputBuffer.h"

namespace norvepa::test
{
namespace
{

// Queries that answer into one buffer.
class TextFormsTest : public CatalogueScene
{
protected:
    [[nodiscard]] std::wstring FileOf(std::wstring_view answer) const { return File(FileAnswering(answer)); }
};

TEST_F(TextFormsTest, CopyTheTextAndTellItsLength)
{
    const std::wstring path = FileOf(L"Größe");

    for (const TextForm& form : TextForms())
    {
        SCOPED_TRACE(form.name);
        OutputBuffer buffer(100);

        EXPECT_EQ(form.ask(path.c_str(), buffer.data(), &buffer.length), PGSP_OK);

        EXPECT_EQ(buffer.text(), L"Größe");
        EXPECT_EQ(buffer.length, 5u);
    }
}

TEST_F(TextFormsTest, NeedRoomForTheTerminator)
{
    const std::wstring path = FileOf(L"Größe");

    for (const TextForm& form : TextForms())
    {
        SCOPED_TRACE(form.name);
        OutputBuffer none(0);
        OutputBuffer tooShort(5);
        OutputBuffer justEnough(6);

        EXPECT_EQ(form.ask(path.c_str(), none.data(), &none.length), PGSP_ERR_BUFFER_TOO_SHORT);
        EXPECT_EQ(form.ask(path.c_str(), tooShort.data(), &tooShort.length), PGSP_ERR_BUFFER_TOO_SHORT);
        EXPECT_EQ(form.ask(path.c_str(), justEnough.data(), &justEnough.length), PGSP_OK);

        EXPECT_TRUE(none.isUntouched());
        EXPECT_EQ(none.length, 5u);
        EXPECT_TRUE(tooShort.isUntouched());
        EXPECT_EQ(tooShort.length, 5u);
        EXPECT_EQ(justEnough.text(), L"Größe");
        EXPECT_EQ(justEnough.length, 5u);
    }
}

TEST_F(TextFormsTest, NeedRoomForTheTerminatorOfAnEmptyTextToo)
{
    const std::wstring path = FileOf(L"");

    for (const TextForm& form : TextForms())
    {
        SCOPED_TRACE(form.name);
        OutputBuffer none(0);
        OutputBuffer one(1);

        EXPECT_EQ(form.ask(path.c_str(), none.data(), &none.length), PGSP_ERR_BUFFER_TOO_SHORT);
        EXPECT_EQ(form.ask(path.c_str(), one.data(), &one.length), PGSP_OK);

        EXPECT_TRUE(none.isUntouched());
        EXPECT_EQ(none.length, 0u);
        EXPECT_EQ(one.text(), L"");
        EXPECT_EQ(one.length, 0u);
    }
}

TEST_F(TextFormsTest, LeaveBufferAndLengthWhenThereIsNoAnswer)
{
    const std::wstring silent = File(SilentFile());
    const std::wstring missing = folder() / L"missing";

    for (const TextForm& form : TextForms())
    {
        SCOPED_TRACE(form.name);
        OutputBuffer buffer(100);

        EXPECT_EQ(form.ask(silent.c_str(), buffer.data(), &buffer.length), PGSP_ERR_PARAM_NOT_FOUND);
        EXPECT_EQ(form.ask(missing.c_str(), buffer.data(), &buffer.length), PGSP_ERR_CANT_LOAD_XML_FILE);

        EXPECT_TRUE(buffer.isUntouched());
        EXPECT_EQ(buffer.length, 100u);
    }
}

TEST_F(TextFormsTest, NeedPathBufferAndLength)
{
    const std::wstring path = FileOf(L"Größe");

    for (const TextForm& form : TextForms())
    {
        SCOPED_TRACE(form.name);
        OutputBuffer buffer(100);

        EXPECT_EQ(form.ask(nullptr, buffer.data(), &buffer.length), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(form.ask(L"", buffer.data(), &buffer.length), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(form.ask(path.c_str(), nullptr, &buffer.length), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(form.ask(path.c_str(), buffer.data(), nullptr), PGSP_ERR_INVALID_PARAMETERS);

        EXPECT_TRUE(buffer.isUntouched());
        EXPECT_EQ(buffer.length, 100u);
    }
}

} // namespace
} // namespace norvepa::test
