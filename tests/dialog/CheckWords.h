#pragma once

#include "RecordingCompanions.h"

#include <kv_config_gui_mvc/companions.h>

/// What an encoder's check says beside its messages, for checks of RecordingCompanions.

/// The next message is about the setting.
inline void tellAbout(KvMvcLookup lookUp, const char* setting, int view = KV_MVC_ALL_VIEWS,
                      int kind = KV_MVC_MESSAGE_ERROR)
{
    KvMvcMessageAbout about = {};
    about.size = sizeof about;
    about.kind = kind;
    about.rule = "some.rule";
    about.setting = setting;
    about.view = view;
    reinterpret_cast<KvMvcTellAbout>(lookUp("msg_about"))(&about);
}

/// A message about the setting.
inline void printAbout(KvMvcLookup lookUp, const char* sink, const char* setting, int view,
                       const QByteArray& text)
{
    tellAbout(lookUp, setting, view);
    print(lookUp, sink, "%s", text.constData());
}
