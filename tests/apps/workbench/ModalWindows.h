// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

/// Meets modal windows, which hold up whoever opens them: each is acted on from the event loop once it is there.
class ModalWindows
{
public:
    /// Does this with the next modal window of a kind.
    template <class Window>
    void meet(const std::function<void(Window&)>& act)
    {
        auto* timer = new QTimer(&m_waiting);
        QObject::connect(timer, &QTimer::timeout, &m_waiting, [this, timer, act] {
            auto* window = qobject_cast<Window*>(QApplication::activeModalWidget());
            if (window != nullptr && window->isVisible()) {
                timer->deleteLater();
                timer->stop();
                ++m_met;
                act(*window);
            }
        });
        timer->start(20);
    }

    /// Types a path into the next file dialog and confirms it.
    void giveFile(const QString& file)
    {
        meet<QFileDialog>([file](QFileDialog& dialog) {
            auto* field = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            QVERIFY(field != nullptr);
            field->setText(file);
            QTest::keyClick(field, Qt::Key_Return);
        });
    }

    void press(QMessageBox::StandardButton button)
    {
        meet<QMessageBox>([button](QMessageBox& box) { QTest::mouseClick(box.button(button), Qt::LeftButton); });
    }

    int met() const { return m_met; }

    /// Waits no more for windows that did not come, and counts anew.
    void forget()
    {
        m_met = 0;
        for (QTimer* timer : m_waiting.findChildren<QTimer*>()) {
            timer->stop();
        }
    }

private:
    QObject m_waiting;
    int m_met = 0;
};
