/**
 * @file companion_check.h
 * Runs an encoder's check and takes its messages: code for host programs, and for companion
 * libraries that use the encoder's.
 *
 *     KvMvcMessageList said = {NULL, 0};
 *     KvMvcListener listener = {kvMvcKeepMessage, &said, NULL, 0};
 *     int accepted = kvMvcRunCheck(check, &settings, &listener) == 0;
 *     for (size_t i = 0; i < said.count; ++i) {
 *         puts(said.messages[i].text);
 *     }
 *     kvMvcFreeMessages(&said);
 *
 * What a message is about (its rule, setting, view, numbers) comes with it where the encoder tells:
 * KvMvcMessage::about, or kvMvcMessageAbout() for a listener of your own. kvMvcRunFullCheck() also
 * tells how much of each limit is used.
 *
 * A check calls its sinks without saying for whom, so each thread has one listener at a time; a
 * check that is run inside another one has its own.
 */
#ifndef KV_CONFIG_GUI_MVC_COMPANION_CHECK_H
#define KV_CONFIG_GUI_MVC_COMPANION_CHECK_H

#include <stdarg.h>
#include <stddef.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "companions.h"

/* C has no nullptr. NOLINTBEGIN(modernize-use-nullptr) */

/**
 * Takes a message, during the check and on its thread.
 * @param context KvMvcListener::context.
 * @param kind    KvMvcMessageKind, as the sinks know it: a risk is a warning.
 * @param text    The whole message, valid during the call; encoded as the encoder has it: UTF-8, or
 *                Latin-1 where it is no valid UTF-8.
 * @return Whether it could be kept; otherwise it counts as lost, and so it does when this throws.
 */
typedef int (*KvMvcHear)(void* context, int32_t kind, const char* text);

/** Who takes the messages of a check. */
typedef struct KvMvcListener {
    KvMvcHear hear; /**< takes each of them */
    void* context;  /**< for `hear` */
    /** Translates the formats before they are filled in; null: they are taken as they are. */
    KvMvcLocalizeConvert translate;
    size_t lost; /**< set by kvMvcRunCheck(): messages that there was no memory for */
} KvMvcListener;

/**
 * Takes the use of a limit, during the check and on its thread.
 * @param context KvMvcLimitListener::context.
 * @param use     Whole, whatever size the encoder has of it; valid during the call.
 * @return As KvMvcHear.
 */
typedef int (*KvMvcHearLimitUse)(void* context, const KvMvcLimitUse* use);

/** Who takes how much of the limits is used. */
typedef struct KvMvcLimitListener {
    KvMvcHearLimitUse hear; /**< takes each of them */
    void* context;          /**< for `hear` */
    size_t lost;            /**< set by kvMvcRunFullCheck(), as KvMvcListener's */
} KvMvcLimitListener;

/* --- What a check is given ----------------------------------------------- */

/** The sinks that a lookup hands out. */
typedef struct KvMvcSinks {
    KvMvcPrintf error;    /**< KV_MVC_ERROR_SINK */
    KvMvcPrintf warning;  /**< KV_MVC_WARNING_SINK */
    KvMvcPrintf note;     /**< KV_MVC_NOTE_SINK */
    KvMvcPrintf progress; /**< KV_MVC_PROGRESS_SINK */
} KvMvcSinks;

/** The answer of a KvMvcLookup: one of the sinks, malloc or free; null for any other name. */
static inline KvMvcFunction kvMvcLookUpIn(const KvMvcSinks* sinks, const char* name)
{
    const struct {
        const char* name;
        KvMvcFunction function;
    } rows[] = {{KV_MVC_MALLOC, (KvMvcFunction)&malloc},
                {KV_MVC_FREE, (KvMvcFunction)&free},
                {KV_MVC_ERROR_SINK, (KvMvcFunction)sinks->error},
                {KV_MVC_WARNING_SINK, (KvMvcFunction)sinks->warning},
                {KV_MVC_NOTE_SINK, (KvMvcFunction)sinks->note},
                {KV_MVC_PROGRESS_SINK, (KvMvcFunction)sinks->progress}};
    size_t row;
    for (row = 0; name != NULL && row < sizeof rows / sizeof rows[0]; ++row) {
        if (strcmp(name, rows[row].name) == 0) {
            return rows[row].function;
        }
    }
    return NULL;
}

/**
 * The text of a sink's arguments, whole, whatever its length; the format itself where it cannot be
 * filled in.
 * @return The caller's, to be freed with free(); null when there is no memory.
 */
static inline char* kvMvcFormatMessage(const char* format, va_list arguments)
{
    va_list measured;
    int length;
    size_t size;
    char* text;
    va_copy(measured, arguments);
    /* NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): clang 16 loses the copy in C++. */
    length = vsnprintf(NULL, 0, format, measured);
    va_end(measured);
    size = (length < 0 ? strlen(format) : (size_t)length) + 1;
    text = (char*)malloc(size);
    if (text != NULL && length < 0) {
        memcpy(text, format, size);
    } else if (text != NULL) {
        vsnprintf(text, size, format, arguments);
    }
    return text;
}

/** Appends a text to a block; @return where it is, null for null. */
static inline const char* kvMvcPlaceText(char** end, const char* text)
{
    char* const placed = *end;
    const size_t size = text != NULL ? strlen(text) + 1 : 0;
    if (text == NULL) {
        return NULL;
    }
    memcpy(placed, text, size);
    *end += size;
    return placed;
}

/** The bytes that kvMvcPlaceText() takes for a text; none for null. */
static inline size_t kvMvcRoomOf(const char* text)
{
    return text != NULL ? strlen(text) + 1 : 0;
}

/**
 * A copy with texts of its own; members that the encoder does not have yet are zeros.
 * @return One block, to be freed with free(); null when there is no memory.
 */
static inline KvMvcMessageAbout* kvMvcCopyAbout(const KvMvcMessageAbout* about)
{
    KvMvcMessageAbout known;
    KvMvcMessageAbout* copy;
    char* end;
    memset(&known, 0, sizeof known);
    memcpy(&known, about, about->size < sizeof known ? about->size : sizeof known);
    known.size = (uint32_t)sizeof known;
    copy = (KvMvcMessageAbout*)malloc(sizeof known + kvMvcRoomOf(known.rule) +
                                      kvMvcRoomOf(known.setting) + kvMvcRoomOf(known.level));
    if (copy != NULL) {
        end = (char*)(copy + 1);
        known.rule = kvMvcPlaceText(&end, known.rule);
        known.setting = kvMvcPlaceText(&end, known.setting);
        known.level = kvMvcPlaceText(&end, known.level);
        *copy = known;
    }
    return copy;
}

/** The same of a limit's use. */
static inline KvMvcLimitUse* kvMvcCopyLimitUse(const KvMvcLimitUse* use)
{
    KvMvcLimitUse known;
    KvMvcLimitUse* copy;
    char* end;
    memset(&known, 0, sizeof known);
    memcpy(&known, use, use->size < sizeof known ? use->size : sizeof known);
    known.size = (uint32_t)sizeof known;
    copy = (KvMvcLimitUse*)malloc(sizeof known + kvMvcRoomOf(known.name) + kvMvcRoomOf(known.unit) +
                                  kvMvcRoomOf(known.rule) + kvMvcRoomOf(known.level));
    if (copy != NULL) {
        end = (char*)(copy + 1);
        known.name = kvMvcPlaceText(&end, known.name);
        known.unit = kvMvcPlaceText(&end, known.unit);
        known.rule = kvMvcPlaceText(&end, known.rule);
        known.level = kvMvcPlaceText(&end, known.level);
        *copy = known;
    }
    return copy;
}

/** A check on its way. */
typedef struct KvMvcRunningCheck {
    KvMvcListener* listener;    /**< of the messages */
    KvMvcLimitListener* limits; /**< may be null */
    KvMvcMessageAbout* about;   /**< of the next message; null: not told */
} KvMvcRunningCheck;

/** The check of this thread; null outside checks. */
static inline KvMvcRunningCheck** kvMvcListening(void)
{
#if defined(__cplusplus)
    static thread_local KvMvcRunningCheck* running = NULL;
#else
    static _Thread_local KvMvcRunningCheck* running = NULL;
#endif
    return &running;
}

/** Calls a listener, out of which no exception comes. @return Whether it kept the message. */
static inline int kvMvcHearText(const KvMvcListener* listener, int32_t kind, const char* text)
{
#if defined(__cpp_exceptions)
    /* The encoder is between here and whoever could catch it. */
    try {
        return listener->hear(listener->context, kind, text);
    } catch (...) {
        return 0;
    }
#else
    return listener->hear(listener->context, kind, text);
#endif
}

/** The same for the use of a limit. */
static inline int kvMvcHearUse(const KvMvcLimitListener* listener, const KvMvcLimitUse* use)
{
#if defined(__cpp_exceptions)
    try {
        return listener->hear(listener->context, use);
    } catch (...) {
        return 0;
    }
#else
    return listener->hear(listener->context, use);
#endif
}

/** Gives a sink's arguments to the listener of this thread. */
static inline void kvMvcTakeMessage(int32_t kind, const char* format, va_list arguments)
{
    KvMvcRunningCheck* const running = *kvMvcListening();
    KvMvcListener* listener;
    const char* translated;
    char* text;
    if (running == NULL || format == NULL) {
        return;
    }
    listener = running->listener;
    translated = listener->translate != NULL ? listener->translate(format) : NULL;
    text = kvMvcFormatMessage(translated != NULL ? translated : format, arguments);
    if (text == NULL || !kvMvcHearText(listener, kind, text)) {
        ++listener->lost;
    }
    free(text);
    free(running->about);
    running->about = NULL;
}

/** The KvMvcTellAbout of kvMvcLookUp(). */
static inline void kvMvcTakeAbout(const KvMvcMessageAbout* about)
{
    KvMvcRunningCheck* const running = *kvMvcListening();
    if (running != NULL) {
        free(running->about);
        running->about = kvMvcCopyAbout(about);
    }
}

/** The KvMvcTellLimitUse of kvMvcLookUp(). */
static inline void kvMvcTakeLimitUse(const KvMvcLimitUse* use)
{
    KvMvcRunningCheck* const running = *kvMvcListening();
    KvMvcLimitUse* whole;
    if (running == NULL || running->limits == NULL) {
        return;
    }
    whole = kvMvcCopyLimitUse(use);
    if (whole == NULL || !kvMvcHearUse(running->limits, whole)) {
        ++running->limits->lost;
    }
    free(whole);
}

/**
 * For a KvMvcHear: what the message that it takes is about.
 * @return Valid as long as the message's text; null where the encoder does not tell, or there is no
 *         memory for it.
 */
static inline const KvMvcMessageAbout* kvMvcMessageAbout(void)
{
    const KvMvcRunningCheck* const running = *kvMvcListening();
    return running != NULL ? running->about : NULL;
}

/** A KvMvcPrintf: KV_MVC_ERROR_SINK of kvMvcLookUp(). */
static inline int kvMvcPrintError(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    kvMvcTakeMessage(KV_MVC_MESSAGE_ERROR, format, arguments);
    va_end(arguments);
    return 0;
}

/** A KvMvcPrintf: its KV_MVC_WARNING_SINK. */
static inline int kvMvcPrintWarning(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    kvMvcTakeMessage(KV_MVC_MESSAGE_WARNING, format, arguments);
    va_end(arguments);
    return 0;
}

/** A KvMvcPrintf: its KV_MVC_NOTE_SINK. */
static inline int kvMvcPrintNote(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    kvMvcTakeMessage(KV_MVC_MESSAGE_NOTE, format, arguments);
    va_end(arguments);
    return 0;
}

/** A KvMvcPrintf: its KV_MVC_PROGRESS_SINK, which nobody hears. */
static inline int kvMvcDropProgress(const char* format, ...)
{
    (void)format;
    return 0;
}

/** The KvMvcLookup of kvMvcRunCheck() and kvMvcRunFullCheck(). */
static inline KvMvcFunction kvMvcLookUp(const char* name)
{
    const KvMvcSinks sinks = {&kvMvcPrintError, &kvMvcPrintWarning, &kvMvcPrintNote,
                              &kvMvcDropProgress};
    const KvMvcRunningCheck* const running = *kvMvcListening();
    if (name != NULL && strcmp(name, KV_MVC_MESSAGE_ABOUT) == 0) {
        return (KvMvcFunction)&kvMvcTakeAbout;
    }
    /* An encoder that nobody listens to saves itself the work. */
    if (name != NULL && strcmp(name, KV_MVC_LIMIT_USE) == 0) {
        return running != NULL && running->limits != NULL ? (KvMvcFunction)&kvMvcTakeLimitUse
                                                          : NULL;
    }
    return kvMvcLookUpIn(&sinks, name);
}

/**
 * Runs the check as the dialog does.
 * @param check    The encoder's.
 * @param settings May be corrected by the check, whatever its result.
 * @param listener Takes all of its messages.
 * @param limits   Takes how much of the limits is used; may be null.
 * @return The check's: 0 when the settings are acceptable.
 */
static inline int32_t kvMvcRunFullCheck(KvMvcCheck check, KvMvcSettings* settings,
                                        KvMvcListener* listener, KvMvcLimitListener* limits)
{
    KvMvcRunningCheck* const former = *kvMvcListening();
    KvMvcRunningCheck running = {listener, limits, NULL};
    int32_t result;
    listener->lost = 0;
    if (limits != NULL) {
        limits->lost = 0;
    }
    *kvMvcListening() = &running;
    result = check(&kvMvcLookUp, settings, KV_MVC_CHECK_STAGE, 0);
    *kvMvcListening() = former;
    free(running.about); /* of a message that never came */
    return result;
}

/** The same for who wants the messages alone. */
static inline int32_t kvMvcRunCheck(KvMvcCheck check, KvMvcSettings* settings,
                                    KvMvcListener* listener)
{
    return kvMvcRunFullCheck(check, settings, listener, NULL);
}

/* --- Messages in a list --------------------------------------------------- */

/** A message that was kept. */
typedef struct KvMvcMessage {
    int32_t kind;             /**< KvMvcMessageKind, as a KvMvcHear gets it */
    char* text;               /**< owned by the list */
    KvMvcMessageAbout* about; /**< likewise; null where kvMvcMessageAbout() was */
} KvMvcMessage;

/** Messages in the order in which they came. Zeros are an empty list; it grows by itself. */
typedef struct KvMvcMessageList {
    KvMvcMessage* messages; /**< owned by the list */
    size_t count;           /**< how many there are */
} KvMvcMessageList;

/** A KvMvcHear whose context is a KvMvcMessageList, which keeps a copy. */
static inline int kvMvcKeepMessage(void* context, int32_t kind, const char* text)
{
    KvMvcMessageList* const list = (KvMvcMessageList*)context;
    const size_t size = strlen(text) + 1;
    const KvMvcMessageAbout* const about = kvMvcMessageAbout();
    char* const copy = (char*)malloc(size);
    KvMvcMessage* const longer =
        copy == NULL ? NULL
                     : (KvMvcMessage*)realloc(list->messages, (list->count + 1) * sizeof *longer);
    if (longer == NULL) {
        free(copy);
        return 0;
    }
    memcpy(copy, text, size);
    list->messages = longer;
    list->messages[list->count].kind = kind;
    list->messages[list->count].text = copy;
    list->messages[list->count].about = about != NULL ? kvMvcCopyAbout(about) : NULL;
    ++list->count;
    return 1;
}

/** Frees the messages; an empty list is left. */
static inline void kvMvcFreeMessages(KvMvcMessageList* list)
{
    size_t i;
    for (i = 0; i < list->count; ++i) {
        free(list->messages[i].text);
        free(list->messages[i].about);
    }
    free(list->messages);
    list->messages = NULL;
    list->count = 0;
}

/** Uses of limits in the order in which they came. Zeros are an empty list; it grows by itself. */
typedef struct KvMvcLimitList {
    KvMvcLimitUse** uses; /**< owned by the list */
    size_t count;         /**< how many there are */
} KvMvcLimitList;

/** A KvMvcHearLimitUse whose context is a KvMvcLimitList, which keeps a copy. */
static inline int kvMvcKeepLimitUse(void* context, const KvMvcLimitUse* use)
{
    KvMvcLimitList* const list = (KvMvcLimitList*)context;
    KvMvcLimitUse* const copy = kvMvcCopyLimitUse(use);
    /* An array of pointers. NOLINTBEGIN(bugprone-sizeof-expression) */
    KvMvcLimitUse** const longer =
        copy == NULL ? NULL
                     : (KvMvcLimitUse**)realloc(list->uses, (list->count + 1) * sizeof *longer);
    /* NOLINTEND(bugprone-sizeof-expression) */
    if (longer == NULL) {
        free(copy);
        return 0;
    }
    list->uses = longer;
    list->uses[list->count] = copy;
    ++list->count;
    return 1;
}

/** Frees them; an empty list is left. */
static inline void kvMvcFreeLimitUses(KvMvcLimitList* list)
{
    size_t i;
    for (i = 0; i < list->count; ++i) {
        free(list->uses[i]);
    }
    free(list->uses);
    list->uses = NULL;
    list->count = 0;
}

/* NOLINTEND(modernize-use-nullptr) */

#endif
