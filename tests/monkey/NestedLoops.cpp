#include "NestedLoops.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>

namespace
{

/// The timer fires at most once in each of the few rounds that an event itself takes.
constexpr int longestEvent = 4;
/// A window that is still there then is closed, whatever it is.
constexpr int longestStay = 200;

} // namespace

NestedLoops::NestedLoops() : m_random({0})
{
    connect(&m_timer, &QTimer::timeout, this, &NestedLoops::look);
}

void NestedLoops::begin(quint32 seed)
{
    m_random = Random({seed});
    m_isBusy = true;
    m_looks = 0;
    m_timer.start(0);
}

void NestedLoops::end()
{
    m_isBusy = false;
    m_timer.stop();
}

void NestedLoops::look()
{
    if (!m_isBusy || ++m_looks <= longestEvent) {
        return;
    }
    if (QWidget* const popup = QApplication::activePopupWidget()) {
        QTest::keyClick(popup,
                        m_looks < longestStay && m_random.oneIn(2) ? Qt::Key_Down : Qt::Key_Escape);
        ++m_answered;
    } else if (QWidget* const window = QApplication::activeModalWidget()) {
        answer(window);
    }
}

void NestedLoops::answer(QWidget* window)
{
    ++m_answered;
    auto* const files = qobject_cast<QFileDialog*>(window);
    if (m_looks > longestStay) {
        window->close();
    } else if (files) {
        answerFileDialog(files);
    } else if (qobject_cast<QMessageBox*>(window)) {
        const auto buttons = window->findChildren<QAbstractButton*>();
        m_random.oneOf(buttons)->click();
    } else {
        window->close();
    }
}

void NestedLoops::answerFileDialog(QFileDialog* dialog)
{
    auto* const name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (m_files.isEmpty() || !name || m_random.oneIn(3)) {
        dialog->reject();
        return;
    }
    name->setText(m_random.oneOf(m_files));
    QTest::keyClick(name, Qt::Key_Return);
}
