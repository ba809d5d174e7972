#pragma once

#include "Encoder.h"

#include <QJsonObject>
#include <QLatin1String>

// What the encoder says, as JSON: docs/json.md has it in words, docs/messages.schema.json as a
// schema.

/// @return "error", "risk", "warning" or "note".
QLatin1String kindName(CheckMessage::Kind kind);

/// @return {"kind", "text", "rule", "setting", "view", "value", "limit", "level"}; null where the
///         encoder does not tell.
QJsonObject messageJson(const CheckMessage& message);

/// @return {"name", "view", "used", "limit", "unit", "rule", "level"}
QJsonObject limitJson(const LimitUse& use);

/// @return The text, or null when there is none.
QJsonValue textOrNull(const QString& text);
