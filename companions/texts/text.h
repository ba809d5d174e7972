// What a file of translations consists of: rows of a rule, the English format and its translation.
#pragma once

namespace kv::texts
{

/// A printf format of the encoder with its translation, both UTF-8. The translation has exactly the
/// conversions of the format, in the same order: nothing checks them when a message is made.
struct Text {
    const char* rule; ///< its name in the encoder's rule list; "limit": what a limit is called
    const char* format;
    const char* translation;
};

} // namespace kv::texts

/// The two rows of a rule whose message names the view that it is about. Its sentence is written
/// once; each file of translations says KV_BASE_VIEW and KV_OTHER_VIEW in its language.
#define KV_TEXT_OF_EACH_VIEW(rule, english, translation)                                           \
    {rule, "Base view: " english, KV_BASE_VIEW translation},                                       \
    {                                                                                              \
        rule, "View %d: " english, KV_OTHER_VIEW translation                                       \
    }
/// The same where the message about the base view is about all views, and names none.
#define KV_TEXT_OF_ALL_VIEWS(rule, english, translation)                                           \
    {rule, english, translation},                                                                  \
    {                                                                                              \
        rule, "View %d: " english, KV_OTHER_VIEW translation                                       \
    }
/// The row of a setting that view 1 gets from the base view: its name, in KV_SHARED_SETTING.
#define KV_TEXT_OF_SHARED(rule, english, translation)                                              \
    {                                                                                              \
        rule, "View 1 now has the base view's value, which all views share: " english ".",         \
            KV_SHARED_SETTING(translation)                                                         \
    }
