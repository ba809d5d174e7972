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
        std::vector<qint32> own;
        for (const ViewRow& row : keyTable().rateControl) {
            own.push_back(view.*row.field);
        }
        view = record.view(1);
        auto kept = own.cbegin();
        for (const ViewRow& row : keyTable().rateControl) {
            view.*row.field = *kept++;
        }
    }
}
