#include "ModuleTrace.h"

#include <QLoggingCategory>

#include <cstring>

namespace
{

constexpr char categoryName[] = "kv.config_gui_mvc";

QStringList collected;
QtMessageHandler formerHandler = nullptr;
QLoggingCategory::CategoryFilter formerFilter = nullptr;

void handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (context.category != nullptr && std::strcmp(context.category, categoryName) == 0) {
        collected << text;
    } else {
        formerHandler(type, context, text);
    }
}

void enable(QLoggingCategory* category)
{
    formerFilter(category);
    if (std::strcmp(category->categoryName(), categoryName) == 0) {
        category->setEnabled(QtDebugMsg, true);
    }
}

} // namespace

ModuleTrace::ModuleTrace() : m_former(qInstallMessageHandler(handle))
{
    formerHandler = m_former;
    collected.clear();
    // Before the new one is called, which goes on to it.
    formerFilter = QLoggingCategory::installFilter(nullptr);
    QLoggingCategory::installFilter(enable);
}

ModuleTrace::~ModuleTrace()
{
    QLoggingCategory::installFilter(formerFilter);
    qInstallMessageHandler(m_former);
}

const QStringList& ModuleTrace::lines()
{
    return collected;
}

QString ModuleTrace::reason()
{
    const QLatin1String start("result 1: ");
    const QString last = collected.isEmpty() ? QString() : collected.last();
    return last.startsWith(start) ? last.mid(start.size()) : QString();
}
