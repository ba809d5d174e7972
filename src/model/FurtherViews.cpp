#include "FurtherViews.h"

#include "KeyTable.h"

void resetFurtherViews(WorkingRecord& record)
{
    for (KvMvcViewSettings& view : record.furtherViews) {
        view = record.view(1);
    }
}

void followSecondView(WorkingRecord& record)
{
    for (KvMvcViewSettings& view : record.furtherViews) {
        KvMvcViewSettings next = record.view(1);
        for (const ViewRow& row : keyTable().rateControl) {
            next.*row.field = view.*row.field;
        }
        view = next;
    }
}
