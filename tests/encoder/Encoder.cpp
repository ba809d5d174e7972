#include "Encoder.h"

#include <QDir>
#include <QLibrary>

#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "rules.h"

namespace
{

Outcome* current = nullptr;

int collect(int kind, const char* format, va_list arguments)
{
    char text[1024];
    const int length = std::vsnprintf(text, sizeof text, format, arguments);
    current->formats[kind].append(format);
    current->texts[kind].append(text);
    bool listed = false;
    for (const kv::encoder::RuleGroup& group : kv::encoder::ruleGroups()) {
        for (const kv::encoder::RuleInfo* rule : group.rules) {
            for (const char* const known : {rule->format, rule->viewFormat}) {
                if (known && std::strcmp(known, format) == 0) {
                    current->rules.append(QString::fromLatin1(rule->id));
                    listed = true;
                }
            }
        }
    }
    if (!listed) {
        qFatal("the rule list lacks what was said: %s", format);
    }
    return length;
}

template <int kind>
int sink(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const int length = collect(kind, format, arguments);
    va_end(arguments);
    return length;
}

KvMvcFunction lookUp(const char* name)
{
    const struct {
        const char* name;
        KvMvcPrintf function;
    } sinks[] = {{"err_printf", sink<0>}, {"wrn_printf", sink<1>}, {"inf_printf", sink<2>}};
    for (const auto& row : sinks) {
        if (std::strcmp(row.name, name) == 0) {
            return reinterpret_cast<KvMvcFunction>(row.function);
        }
    }
    return nullptr;
}

QFunctionPointer resolve(const char* function)
{
    QLibrary library(
        QDir(qEnvironmentVariable("KV_BIN_DIR")).filePath(QStringLiteral("kv_mvcenc")));
    const QFunctionPointer address = library.resolve(function);
    if (!address) {
        qFatal("%s: %s", function, qPrintable(library.errorString()));
    }
    return address;
}

} // namespace

QByteArray Outcome::all() const
{
    return "\n  errors: " + texts[0].join("\n    ") + "\n  warnings: " + texts[1].join("\n    ") +
           "\n  notes: " + texts[2].join("\n    ");
}

namespace encoder
{

KvMvcDefaults defaultsFunction()
{
    static const auto function = reinterpret_cast<KvMvcDefaults>(resolve(KV_MVC_ENCODER_DEFAULTS));
    return function;
}

KvMvcCheck checkFunction()
{
    static const auto function = reinterpret_cast<KvMvcCheck>(resolve(KV_MVC_ENCODER_CHECK));
    return function;
}

KvMvcSettings preset(int number)
{
    KvMvcSettings record;
    defaultsFunction()(&record, 0, number, 0);
    return record;
}

Outcome check(KvMvcSettings& record)
{
    Outcome outcome;
    current = &outcome;
    outcome.result = checkFunction()(lookUp, &record, 3, 0);
    current = nullptr;
    return outcome;
}

} // namespace encoder
