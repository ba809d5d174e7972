#include "SettingsToState.h"

#include <kv_config_gui_mvc/config_gui.h>

namespace
{

void describeRows(const std::vector<ViewRow>& rows, const KvMvcViewSettings& view, Describing& out)
{
    for (const ViewRow& row : rows) {
        describeRow(row, row.key, view, out);
    }
}

} // namespace

ConfigEntry describeVideoType(const Vocabulary& vocabulary, qint32 flags,
                              const KvMvcViewSettings& view)
{
    const auto name = vocabulary.list(ListName::VideoTypes).textOf(view.video_type);
    return {name.value_or(QString()), !(flags & KV_MVC_GUI_LOCK_VIDEO_TYPE)};
}

BasicDescription describeBasic(const Vocabulary& vocabulary, qint32 flags,
                               const KvMvcViewSettings& view)
{
    Describing out{vocabulary, flags};
    describeRows(keyTable().basic, view, out);
    return {out.state, out.customFrameRate};
}

ConfigState describeAdvanced(const Vocabulary& vocabulary, qint32 flags,
                             const KvMvcViewSettings& view)
{
    Describing out{vocabulary, flags};
    describeRows(keyTable().advanced, view, out);
    return out.state;
}

ConfigState describeViews(const Vocabulary& vocabulary, qint32 flags, const WorkingRecord& record)
{
    Describing out{vocabulary, flags};
    for (const RecordRow& row : keyTable().record) {
        describeRow(row, row.key, record.settings, out);
    }
    for (int view = 0; view < KV_MVC_MAX_VIEWS; ++view) {
        for (const ViewRow& row : keyTable().rateControl) {
            describeRow(row, row.keyIn(view), record.view(view), out);
        }
    }
    return out.state;
}
