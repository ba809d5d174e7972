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

/** The kinds of messages; progress is none. */
enum KvMvcMessageKind {
    KV_MVC_MESSAGE_ERROR = 0,
    KV_MVC_MESSAGE_WARNING = 1,
    KV_MVC_MESSAGE_NOTE = 2
};

/**
 * Takes a message, during the check and on its thread.
 * @param context KvMvcListener::context.
 * @param kind    KvMvcMessageKind.
 * @param text    The whole message, valid during the call; encoded as the encoder has it: UTF-8, or
 *                Latin-1 where it is no valid UTF-8.
 * @return Whether it could be kept; otherwise it counts as lost, and so it does when this throws.
 */
typedef int (*KvMvcHear)(void* context, int32_t kind, const char* text);

/** Who takes the messages of a check. */
typedef struct KvMvcListener {
    KvMvcHear hear;
    void* context; /**< for `hear` */
    /** Translates the formats before they are filled in; null: they are taken as they are. */
    KvMvcLocalizeConvert translate;
    size_t lost; /**< set by kvMvcRunCheck(): messages that there was no memory for */
} KvMvcListener;

/* --- What a check is given ----------------------------------------------- */

/** The sinks that a lookup hands out. */
typedef struct KvMvcSinks {
    KvMvcPrintf error;
    KvMvcPrintf warning;
    KvMvcPrintf note;
    KvMvcPrintf progress;
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

/** The listener of this thread; null outside checks. */
static inline KvMvcListener** kvMvcListening(void)
{
#if defined(__cplusplus)
    static thread_local KvMvcListener* listener = NULL;
#else
    static _Thread_local KvMvcListener* listener = NULL;
#endif
    return &listener;
}

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

static inline void kvMvcTakeMessage(int32_t kind, const char* format, va_list arguments)
{
    KvMvcListener* const listener = *kvMvcListening();
    const char* translated;
    char* text;
    if (listener == NULL) {
        return;
    }
    translated = listener->translate != NULL ? listener->translate(format) : NULL;
    text = kvMvcFormatMessage(translated != NULL ? translated : format, arguments);
    if (text == NULL || !kvMvcHearText(listener, kind, text)) {
        ++listener->lost;
    }
    free(text);
}

static inline int kvMvcPrintError(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    kvMvcTakeMessage(KV_MVC_MESSAGE_ERROR, format, arguments);
    va_end(arguments);
    return 0;
}

static inline int kvMvcPrintWarning(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    kvMvcTakeMessage(KV_MVC_MESSAGE_WARNING, format, arguments);
    va_end(arguments);
    return 0;
}

static inline int kvMvcPrintNote(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    kvMvcTakeMessage(KV_MVC_MESSAGE_NOTE, format, arguments);
    va_end(arguments);
    return 0;
}

static inline int kvMvcDropProgress(const char* format, ...)
{
    (void)format;
    return 0;
}

/** The KvMvcLookup of kvMvcRunCheck(). */
static inline KvMvcFunction kvMvcLookUp(const char* name)
{
    const KvMvcSinks sinks = {&kvMvcPrintError, &kvMvcPrintWarning, &kvMvcPrintNote,
                              &kvMvcDropProgress};
    return kvMvcLookUpIn(&sinks, name);
}

/**
 * Runs the check as the dialog does, all of its messages going to the listener.
 * @param settings May be corrected by the check, whatever its result.
 * @return The check's: 0 when the settings are acceptable.
 */
static inline int32_t kvMvcRunCheck(KvMvcCheck check, KvMvcSettings* settings,
                                    KvMvcListener* listener)
{
    KvMvcListener* const former = *kvMvcListening();
    int32_t result;
    listener->lost = 0;
    *kvMvcListening() = listener;
    result = check(&kvMvcLookUp, settings, KV_MVC_CHECK_STAGE, 0);
    *kvMvcListening() = former;
    return result;
}

/* --- Messages in a list --------------------------------------------------- */

typedef struct KvMvcMessage {
    int32_t kind; /**< KvMvcMessageKind */
    char* text;   /**< owned by the list */
} KvMvcMessage;

/** Messages in the order in which they came. Zeros are an empty list; it grows by itself. */
typedef struct KvMvcMessageList {
    KvMvcMessage* messages;
    size_t count;
} KvMvcMessageList;

/** A KvMvcHear whose context is a KvMvcMessageList, which keeps a copy. */
static inline int kvMvcKeepMessage(void* context, int32_t kind, const char* text)
{
    KvMvcMessageList* const list = (KvMvcMessageList*)context;
    const size_t size = strlen(text) + 1;
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
    ++list->count;
    return 1;
}

/** Frees the messages; an empty list is left. */
static inline void kvMvcFreeMessages(KvMvcMessageList* list)
{
    size_t i;
    for (i = 0; i < list->count; ++i) {
        free(list->messages[i].text);
    }
    free(list->messages);
    list->messages = NULL;
    list->count = 0;
}

/* NOLINTEND(modernize-use-nullptr) */

#endif
