#include "catalogue/norvxmlCatalogue.h"
#include "meta/CachedMetaFile.h"
#include "meta/MetaScene.h"
#include "meta/cMetaFiles.h"
#include "notify/directoryCache.h"

#include <optional>
#include <ostream>

namespace norvepa::test
{
namespace
{

// What the memo says of a constraint.
struct Said
{
    bool known = false;
    Result result{12345};
    std::wstring value = L"before";

    bool operator==(const Said&) const = default;
};

const Said NothingKnown;
const Said NotThere{true, PGSP_ERR_PARAM_NOT_FOUND, L"before"};

Said Found(const wchar_t* value)
{
    return {true, PGSP_OK, value};
}

std::ostream& operator<<(std::ostream& out, const Said& said)
{
    return out << (said.known ? "known, " : "unknown, ") << said.result << ", " << ToUtf8(said.value);
}

Said Ask(std::wstring_view filePath, std::wstring_view param, std::wstring_view constraint)
{
    Said said;
    said.known = ConstraintExistsAlready(filePath, param, constraint, said.value, said.result);
    return said;
}

class ConstraintMemo : public MetaScene
{
protected:
    const std::wstring file = folder() / L"a";
};

TEST_F(ConstraintMemo, KnowsNothingInTheBeginningAndLeavesTheOutputsAlone)
{
    EXPECT_EQ(Ask(file, L"baudrate", L"min"), NothingKnown);
}

TEST_F(ConstraintMemo, KnowsAValueThatWasFound)
{
    InsertConstraintToCachedMetaFile(file, L"baudrate", L"min", L"9600");

    EXPECT_EQ(Ask(file, L"baudrate", L"min"), Found(L"9600"));
}

TEST_F(ConstraintMemo, KnowsThatAValueWasNotFound)
{
    InsertConstraintToCachedMetaFile(file, L"baudrate", L"min", std::nullopt);

    EXPECT_EQ(Ask(file, L"baudrate", L"min"), NotThere);
}

TEST_F(ConstraintMemo, TakesAnEmptyValueForAValue)
{
    InsertConstraintToCachedMetaFile(file, L"baudrate", L"min", L"");

    EXPECT_EQ(Ask(file, L"baudrate", L"min"), Found(L""));
}

TEST_F(ConstraintMemo, KeepsFilesParametersAndWordsApart)
{
    InsertConstraintToCachedMetaFile(file, L"baudrate", L"min", L"1");
    InsertConstraintToCachedMetaFile(file, L"baudrate", L"max", L"2");
    InsertConstraintToCachedMetaFile(file, L"station", L"min", L"3");
    InsertConstraintToCachedMetaFile(folder() / L"b", L"baudrate", L"min", L"4");

    EXPECT_EQ(Ask(file, L"baudrate", L"min"), Found(L"1"));
    EXPECT_EQ(Ask(file, L"baudrate", L"max"), Found(L"2"));
    EXPECT_EQ(Ask(file, L"station", L"min"), Found(L"3"));
    EXPECT_EQ(Ask(folder() / L"b", L"baudrate", L"min"), Found(L"4"));
    EXPECT_EQ(Ask(file, L"station", L"max"), NothingKnown);
    EXPECT_EQ(Ask(folder() / L"b", L"station", L"min"), NothingKnown);
}

TEST_F(ConstraintMemo, ComparesWithoutRegardToCase)
{
    InsertConstraintToCachedMetaFile(file, L"BaudRate", L"min", L"1");

    EXPECT_EQ(Ask(folder() / L"A", L"bAUDrATE", L"MIN"), Found(L"1"));
}

TEST_F(ConstraintMemo, ComparesTheWholeStrings)
{
    const std::wstring longName(4096, L'n');
    InsertConstraintToCachedMetaFile(file, longName + L"x", L"min", L"1");
    InsertConstraintToCachedMetaFile(file, L"baudrate", longName + L"x", L"2");
    InsertConstraintToCachedMetaFile(file + longName + L"x", L"baudrate", L"min", L"3");

    EXPECT_EQ(Ask(file, longName + L"y", L"min"), NothingKnown);
    EXPECT_EQ(Ask(file, L"baudrate", longName + L"y"), NothingKnown);
    EXPECT_EQ(Ask(file + longName + L"y", L"baudrate", L"min"), NothingKnown);
    EXPECT_EQ(Ask(file + longName + L"X", L"baudrate", L"min"), Found(L"3"));
}

TEST_F(ConstraintMemo, TakesAPathWithAnExtensionForAnotherFile)
{
    InsertConstraintToCachedMetaFile(file, L"baudrate", L"min", L"1");

    EXPECT_EQ(Ask(file + L".xml", L"baudrate", L"min"), NothingKnown);
}

TEST_F(ConstraintMemo, KeepsWhatItWasToldFirst)
{
    InsertConstraintToCachedMetaFile(file, L"baudrate", L"min", std::nullopt);
    InsertConstraintToCachedMetaFile(file, L"baudrate", L"min", L"1");
    InsertConstraintToCachedMetaFile(file, L"baudrate", L"max", L"2");
    InsertConstraintToCachedMetaFile(file, L"baudrate", L"max", L"3");

    EXPECT_EQ(Ask(file, L"baudrate", L"min"), NotThere);
    EXPECT_EQ(Ask(file, L"baudrate", L"max"), Found(L"2"));
}

TEST_F(ConstraintMemo, Remembers65536ConstraintsOfAFileAndNoMore)
{
    constexpr int limit = 65'536;
    for (int i = 0; i < limit; ++i)
    {
        InsertConstraintToCachedMetaFile(file, std::to_wstring(i), L"min", std::nullopt);
    }
    InsertConstraintToCachedMetaFile(file, std::to_wstring(limit), L"min", std::nullopt);
    InsertConstraintToCachedMetaFile(folder() / L"b", L"baudrate", L"min", L"1");

    EXPECT_EQ(Ask(file, L"0", L"min"), NotThere);
    EXPECT_EQ(Ask(file, std::to_wstring(limit - 1), L"min"), NotThere);
    EXPECT_EQ(Ask(file, std::to_wstring(limit), L"min"), NothingKnown);
    EXPECT_EQ(Ask(folder() / L"b", L"baudrate", L"min"), Found(L"1"));
}

class RememberedConstraint : public ConstraintMemo
{
protected:
    // The file with these words in the section of "baudrate".
    void Write(const XmlContent& words) const
    {
        File(L"a.xml", ProtocolFile(XmlContent().Element(L"Constraints",
                                                         XmlContent().ParamSection(L"baudrate", words))));
    }

    [[nodiscard]] std::wstring Constraint(const wchar_t* word) const
    {
        std::wstring value;
        const Result result = NorvXMLGetConstraint(file.c_str(), L"baudrate", word, &value);
        return result == PGSP_OK ? value : std::to_wstring(result);
    }
};

TEST_F(RememberedConstraint, StaysWhenTheFileChanges)
{
    Write(XmlContent().Element(L"min", L"9600"));
    EXPECT_EQ(Constraint(L"min"), L"9600");

    Write(XmlContent().Element(L"min", L"19200"));

    EXPECT_EQ(Constraint(L"min"), L"9600");
}

TEST_F(RememberedConstraint, StaysAbsentWhenTheFileHasItLater)
{
    Write(XmlContent());
    EXPECT_EQ(Constraint(L"min"), L"8513");

    Write(XmlContent().Element(L"min", L"9600"));

    EXPECT_EQ(Constraint(L"min"), L"8513");
    EXPECT_EQ(Ask(file, L"baudrate", L"min"), NotThere);
}

TEST_F(RememberedConstraint, IsNotServedToThePathWithTheExtension)
{
    Write(XmlContent().Element(L"min", L"9600"));
    EXPECT_EQ(Constraint(L"min"), L"9600");
    Write(XmlContent().Element(L"min", L"19200"));

    std::wstring value;
    EXPECT_EQ(NorvXMLGetConstraint((file + L".xml").c_str(), L"baudrate", L"min", &value), PGSP_OK);

    EXPECT_EQ(value, L"19200");
}

TEST_F(RememberedConstraint, IsNoneWhileTheFileCannotBeOpened)
{
    EXPECT_EQ(Constraint(L"min"), L"8508");

    Write(XmlContent().Element(L"min", L"9600"));

    EXPECT_EQ(Constraint(L"min"), L"9600");
}

TEST_F(RememberedConstraint, StaysWhenTheLibraryIsDeinitialised)
{
    Write(XmlContent().Element(L"min", L"9600"));
    EXPECT_EQ(Constraint(L"min"), L"9600");
    EXPECT_EQ(Constraint(L"max"), L"8513");
    Write(XmlContent().Element(L"min", L"1").Element(L"max", L"2"));

    // All that NorvepaBl64x_deinit does.
    MetaDropAllDocuments();
    deinitWatchDirectories();

    EXPECT_EQ(Constraint(L"min"), L"9600");
    EXPECT_EQ(Constraint(L"max"), L"8513");
}

} // namespace
} // namespace norvepa::test
