#include "Questions.h"

namespace norvepa::test
{

const std::vector<Question>& Reads()
{
    static const std::vector<Question> all = [] {
        std::vector<Question> both = StoreReads();
        both.insert(both.end(), CatalogueReads().begin(), CatalogueReads().end());
        return both;
    }();
    return all;
}

} // namespace norvepa::test
