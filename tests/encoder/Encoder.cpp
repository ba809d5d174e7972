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

using kv::encoder::Severity;

/// The sink that takes messages of a severity.
Severity sinkOf(Severity severity)
{
    return severity == Severity::Risk ? Severity::Warning : severity;
}

int collect(Severity heardAs, const char* format, va_list arguments)
{
    char text[1024];
    const int length = std::vsnprintf(text, sizeof text, format, arguments);
    bool listed = false;
    for (const kv::encoder::RuleGroup& group : kv::encoder::ruleGroups()) {
        for (const kv::encoder::RuleInfo* rule : group.rules) {
            for (const char* const known : {rule->format, rule->viewFormat}) {
                if (known && std::strcmp(known, format) == 0 && sinkOf(rule->severity) == heardAs) {
                    const auto severity = static_cast<std::size_t>(rule->severity);
                    current->formats[severity].append(format);
                    current->texts[severity].append(text);
                    current->rules.append(QString::fromLatin1(rule->id));
                    listed = true;
                    // Each message is told what it is about, before it.
                    if (current->abouts.size() != current->rules.size() ||
                        current->abouts.last().rule !=
                            (rule->subject.rule ? rule->subject.rule : rule->id)) {
                        qFatal("nobody said what this is about: %s", format);
                    }
                }
            }
        }
    }
    if (!listed) {
        qFatal("the rule list lacks what was said, or has it as another kind: %s", format);
    }
    return length;
}

template <Severity kind>
int sink(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const int length = collect(kind, format, arguments);
    va_end(arguments);
    return length;
}

void hearAbout(const KvMvcMessageAbout* about)
{
    const auto number = [&](KvMvcAboutNumber which, double value) {
        return (about->numbers & which) != 0 ? std::optional(value) : std::nullopt;
    };
    current->abouts.append(About{about->kind, about->rule, about->setting, about->view,
                                 number(KV_MVC_ABOUT_VALUE, about->value),
                                 number(KV_MVC_ABOUT_LIMIT, about->limit), about->level});
}

void hearUse(const KvMvcLimitUse* use)
{
    current->uses.append(
        LimitUse{use->view, use->name, use->used, use->limit, use->unit, use->rule, use->level});
}

KvMvcFunction lookUp(const char* name)
{
    if (std::strcmp(name, "msg_about") == 0) {
        return reinterpret_cast<KvMvcFunction>(hearAbout);
    }
    if (std::strcmp(name, "lim_usage") == 0) {
        return reinterpret_cast<KvMvcFunction>(hearUse);
    }
    const struct {
        const char* name;
        KvMvcPrintf function;
    } sinks[] = {{"err_printf", sink<Severity::Error>},
                 {"wrn_printf", sink<Severity::Warning>},
                 {"inf_printf", sink<Severity::Note>}};
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
           "\n  risks: " + texts[2].join("\n    ") + "\n  notes: " + texts[3].join("\n    ");
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
