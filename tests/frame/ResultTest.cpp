#include "frame/Result.h"

#include <cstdint>
#include <gmock/gmock.h>
#include <ostream>

namespace norvepa
{
namespace
{

struct ResultCase
{
    Result word;
    std::int32_t value;

    friend void PrintTo(const ResultCase& each, std::ostream* out) { *out << each.value; }
};

class ResultWord : public testing::TestWithParam<ResultCase>
{
};

TEST_P(ResultWord, HasItsValue)
{
    EXPECT_EQ(static_cast<std::int32_t>(GetParam().word), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(OfTheSystem, ResultWord,
                         testing::Values(ResultCase{PGSP_OK, 0}, ResultCase{PGSP_ERR_ACCESS_DENIED, 5},
                                         ResultCase{OutOfMemory, 14},
                                         ResultCase{PGSP_ERR_INVALID_PARAMETERS, 87},
                                         ResultCase{PGSP_ERR_BUFFER_TOO_SHORT, 234},
                                         ResultCase{PGSP_ERR_NO_MORE_ITEMS, 259}));

INSTANTIATE_TEST_SUITE_P(
    OfTheServices, ResultWord,
    testing::Values(
        ResultCase{PGSP_ERR_LOG_DEVICE_NOT_EXISTS, 8012}, ResultCase{PGSP_ERR_LOG_DEVICE_NOT_DELETABLE, 8030},
        ResultCase{PGSP_ERR_NOT_REGISTERED, 8040}, ResultCase{PGSP_ERR_PARAM_DESC_NOT_FOUND, 8044},
        ResultCase{PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND, 8046}, ResultCase{PGSP_NOT_IN_LIST, 8050},
        ResultCase{PGSP_NOT_A_BOOL, 8052}, ResultCase{PGSP_SET_VAL_LESS_THAN_MIN, 8054},
        ResultCase{PGSP_SET_VAL_BIGGER_THAN_MAX, 8056}, ResultCase{PGSP_NOT_IN_STEP, 8058},
        ResultCase{PGSP_PROFILE_NO_VALUE, 8062}, ResultCase{PGSP_ERR_CANT_LOAD_DLL, 8101},
        ResultCase{PGSP_CANT_CREATE_TEMP_LOG_DEVICE, 8120}, ResultCase{PGSP_LOCKED_BY_THIS_THREAD, 8202},
        ResultCase{PGSP_LOCKED_BY_OTHER_THREAD, 8204}));

INSTANTIATE_TEST_SUITE_P(
    OfTheStore, ResultWord,
    testing::Values(ResultCase{PGSP_ERR_FILE_NOT_FOUND, 8503}, ResultCase{PGSP_ERR_FILE_EXISTS, 8504},
                    ResultCase{PGSP_ERR_CANT_CREATE_XML_ENGINE, 8505},
                    ResultCase{PGSP_ERR_INVALID_FILE, 8506}, ResultCase{PGSP_ERR_CANT_LOAD_XML_FILE, 8508},
                    ResultCase{PGSP_ERR_CANT_LOAD_SCHEMA, 8509}, ResultCase{PGSP_ERR_CANT_CREATE_FILE, 8510},
                    ResultCase{PGSP_ERR_CANT_DELETE_FILE, 8511}, ResultCase{PGSP_ERR_CANT_COPY_FILE, 8512},
                    ResultCase{PGSP_ERR_PARAM_NOT_FOUND, 8513}, ResultCase{PGSP_ERR_CANT_SET_VALUE, 8514},
                    ResultCase{PGSP_ERR_SAME_VALUE, 8515}, ResultCase{PGSP_ERR_DRIVER_READ, 8516},
                    ResultCase{PGSP_ERR_FOLDER_NOT_FOUND, 8517}, ResultCase{PGSP_ERR_DUPLICATE_EVENT, 8519},
                    ResultCase{PGSP_ERR_DRIVER_BUFFER, 8520}, ResultCase{PGSP_ERR_DRIVER_NO_MEMORY, 8521},
                    ResultCase{PGSP_ERR_CANT_LOAD_RESOURCE, 8522}));

} // namespace
} // namespace norvepa
