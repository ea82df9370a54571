#include "xml/SchemaCollection.h"

#include "support/FreshThread.h"
#include "xml/DocumentScene.h"

#include <stdexcept>

namespace norvepa::test
{
namespace
{

constexpr std::string_view Schema = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' "
                                    "targetNamespace='urn:r' xmlns='urn:r' elementFormDefault='qualified'>"
                                    "<xs:element name='r'><xs:complexType><xs:sequence>"
                                    "<xs:element name='a' type='xs:int'/>"
                                    "</xs:sequence></xs:complexType></xs:element></xs:schema>";

class SchemaCollectionTest : public DocumentScene
{
protected:
    [[nodiscard]] bool IsValid(std::string_view bytes, std::wstring_view namespaceUri = L"urn:r",
                               std::string_view schema = Schema) const
    {
        const SchemaCollection collection = Collection();
        collection.Add(namespaceUri, AsItStands(schema));
        return collection.Validate(AsItStands(bytes)).valid;
    }

    [[nodiscard]] SchemaCollection Collection() const
    {
        SchemaCollection collection;
        if (FAILED(collection.Create()))
        {
            throw std::runtime_error("no schema collection");
        }
        return collection;
    }

    [[nodiscard]] Document AsItStands(std::string_view bytes) const
    {
        WriteBytes(file(), bytes);
        Document document = Empty();
        document.LoadAsItStands();
        if (!document.Load(file()))
        {
            throw std::runtime_error("cannot load " + std::string(bytes));
        }
        return document;
    }
};

TEST_F(SchemaCollectionTest, AThreadWithoutComHasNone)
{
    HRESULT status = S_OK;
    OnFreshThread([&] { status = SchemaCollection().Create(); });

    EXPECT_EQ(status, CO_E_NOTINITIALIZED);
}

TEST_F(SchemaCollectionTest, ADocumentThatFitsIsValid)
{
    EXPECT_TRUE(IsValid("<r xmlns='urn:r'> <a>1</a> <!--c--> </r>"));
    EXPECT_TRUE(IsValid("<p:r xmlns:p='urn:r'><p:a>-2</p:a></p:r>"));
}

TEST_F(SchemaCollectionTest, ADocumentThatDoesNotFitIsNot)
{
    EXPECT_FALSE(IsValid("<r xmlns='urn:r'/>"));
    EXPECT_FALSE(IsValid("<r xmlns='urn:r'><a>one</a></r>"));
    EXPECT_FALSE(IsValid("<r xmlns='urn:r'><a>1</a><a>2</a></r>"));
    EXPECT_FALSE(IsValid("<r xmlns='urn:r'><b>1</b></r>"));
}

TEST_F(SchemaCollectionTest, ADocumentOfAnotherNamespaceIsNot)
{
    EXPECT_FALSE(IsValid("<r xmlns='urn:s'><a>1</a></r>"));
    EXPECT_FALSE(IsValid("<r><a>1</a></r>"));
}

TEST_F(SchemaCollectionTest, ASchemaUnderAnotherNamespaceThanItsOwnDecidesNothing)
{
    EXPECT_FALSE(IsValid("<r xmlns='urn:r'><a>1</a></r>", L"urn:s"));
    EXPECT_FALSE(IsValid("<r xmlns='urn:r'><a>1</a></r>", L""));
}

TEST_F(SchemaCollectionTest, ADocumentThatIsNoSchemaDecidesNothing)
{
    EXPECT_FALSE(IsValid("<r xmlns='urn:r'><a>1</a></r>", L"urn:r", "<nothing/>"));
}

TEST_F(SchemaCollectionTest, WithoutAnySchemaNothingIsValid)
{
    EXPECT_FALSE(Collection().Validate(AsItStands("<r xmlns='urn:r'><a>1</a></r>")).valid);
}

TEST_F(SchemaCollectionTest, ALocationInsideOfTheDocumentPlaysNoPart)
{
    EXPECT_TRUE(IsValid("<r xmlns='urn:r' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
                        "xsi:schemaLocation='urn:r C:\\nowhere\\r.xsd'><a>1</a></r>"));
}

} // namespace
} // namespace norvepa::test
