#include "tables.h"

namespace kv::texts
{

std::array<Table, 7> tables()
{
    return {rangesTable(), ratesTable(), pictureTable(), levelTable(),
            gopTable(),    discTable(),  summaryTable()};
}

} // namespace kv::texts
