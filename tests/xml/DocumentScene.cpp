#include "xml/DocumentScene.h"

#include "support/XmlMeaning.h"

#include <stdexcept>

namespace norvepa::test
{

Document DocumentScene::Empty() const
{
    Document document;
    if (FAILED(document.Create()))
    {
        throw std::runtime_error("no DOM engine");
    }
    return document;
}

Document DocumentScene::Loaded(std::string_view bytes) const
{
    WriteBytes(file(), bytes);
    Document document = Empty();
    if (!document.Load(file()))
    {
        throw std::runtime_error("cannot load " + std::string(bytes));
    }
    return document;
}

std::string DocumentScene::SavedMeaning(const Document& document) const
{
    if (!document.Save(file()))
    {
        throw std::runtime_error("cannot save");
    }
    return MeaningOfFile(file());
}

} // namespace norvepa::test
