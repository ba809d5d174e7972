#include "StateSpy.h"

#include <QMetaType>

namespace
{

QString written(const QVariant& value)
{
    switch (static_cast<int>(value.userType())) {
    case QMetaType::QString:
        return QLatin1Char('\'') + value.toString() + QLatin1Char('\'');
    case QMetaType::Int:
    case QMetaType::Bool:
        return value.toString();
    default:
        return QStringLiteral("(%1)").arg(QLatin1String(value.typeName()));
    }
}

} // namespace

QString written(const ConfigState& state)
{
    QStringList entries;
    for (auto entry = state.entries().begin(); entry != state.entries().end(); ++entry) {
        entries += entry.key() + QLatin1Char('=') + written(entry->value) +
                   (entry->enabled ? QString() : QStringLiteral(" (disabled)"));
    }
    return entries.join(QStringLiteral("; "));
}

void StateSpy::listenTo(const SettingsPage* page)
{
    QObject::connect(page, &SettingsPage::stateChanged, &m_context,
                     [this](const ConfigState& state) { m_states += written(state); });
}
