#pragma once

#include "ExampleSettings.h"
#include "HostProgram.h"
#include "JsonSchema.h"

#include <QJsonDocument>
#include <QJsonObject>

/// What the tests of `check` have in common: settings in "a.ini", beside the encoder whose messages
/// depend on the width.
namespace check_test
{

inline const QString a = QStringLiteral("a.ini");

/// @return What of the program's JSON is not as the schema of messages has it.
inline QString problemOf(const HostProgram::Result& result)
{
    static const JsonSchema schema(QStringLiteral(KV_SOURCE_DIR "/docs/messages.schema.json"));
    return schema.problemOf(QJsonDocument::fromJson(result.output.toUtf8()).object());
}

inline KvMvcSettings settingsOfWidth(int width)
{
    KvMvcSettings settings = exampleSettings();
    settings.views[0].width = width;
    return settings;
}

inline void prepare(HostProgram& program, int width)
{
    program.addStub(QStringLiteral("stub_encoder"), QStringLiteral("kv_mvcenc"));
    program.writeSettings(a, settingsOfWidth(width));
}

} // namespace check_test
