#include "StateToSettings.h"

#include "KeyNames.h"

std::optional<qint32> requestedPreset(const Vocabulary& vocabulary, const ConfigState& state)
{
    for (const QLatin1String key : {keys::restorePreset, keys::videoType}) {
        if (state.contains(key)) {
            return vocabulary.list(ListName::VideoTypes)
                .codeOf(state.value(key).toString())
                .value_or(KV_MVC_VIDEO_TYPE_NONE);
        }
    }
    return std::nullopt;
}

void applyToView(const Applying& in, KvMvcViewSettings& view)
{
    if (const auto preset = requestedPreset(in.vocabulary, in.state)) {
        view.video_type = *preset;
        return;
    }
    for (const auto* rows : {&keyTable().basic, &keyTable().advanced}) {
        for (const ViewRow& row : *rows) {
            applyRow(row, row.key, in, view);
        }
    }
}

void applyViews(const Applying& in, WorkingRecord& record)
{
    for (const RecordRow& row : keyTable().record) {
        applyRow(row, row.key, in, record.settings);
    }
    for (int view = 0; view < KV_MVC_MAX_VIEWS; ++view) {
        for (const ViewRow& row : keyTable().rateControl) {
            applyRow(row, row.keyIn(view), in, record.view(view));
        }
    }
}
