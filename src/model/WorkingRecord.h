#pragma once

#include <algorithm>
#include <type_traits>

#include <kv_config_gui_mvc/settings_record.h>

/// The dialog's working storage: the settings record with its two views and, behind it at the same
/// stride, the slots of views 2 and 3, which reach neither the host nor a library.
///
/// Aligned like a record of naturally aligned fields, which a library may take it for.
struct alignas(8) WorkingRecord {
    KvMvcSettings settings = {};
    KvMvcViewSettings furtherViews[KV_MVC_MAX_VIEWS - KV_MVC_RECORD_VIEWS] = {};

    /// View slot 0 to 3.
    KvMvcViewSettings& view(int index)
    {
        return index < KV_MVC_RECORD_VIEWS ? settings.views[index]
                                           : furtherViews[index - KV_MVC_RECORD_VIEWS];
    }
    const KvMvcViewSettings& view(int index) const
    {
        return const_cast<WorkingRecord*>(this)->view(index);
    }

    /// How many view slots the record's count reaches, 0 to 4: the count comes from outside.
    int viewCount() const { return std::clamp<int>(settings.num_views, 0, KV_MVC_MAX_VIEWS); }
};

static_assert(sizeof(WorkingRecord) ==
              sizeof(KvMvcSettings) +
                  (KV_MVC_MAX_VIEWS - KV_MVC_RECORD_VIEWS) * sizeof(KvMvcViewSettings));
static_assert(std::is_trivially_copyable_v<WorkingRecord>);
