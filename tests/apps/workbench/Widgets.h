// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

// Ways to the parts of windows, by the names that they have for it, and what a user does with them.

/// The only descendant of that name; a test that asks for a missing one ends there.
template <class Part>
Part& part(const QWidget& window, const char* name)
{
    const QList<Part*> found = window.findChildren<Part*>(QLatin1String(name));
    if (found.size() != 1) {
        qFatal("%d parts named %s", found.size(), name);
    }
    return *found.first();
}

/// The visible window of that name; null when there is none.
inline QWidget* windowNamed(const char* name)
{
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->objectName() == QLatin1String(name)) {
            return window;
        }
    }
    return nullptr;
}

/// At its left, where a wide box has its mark.
inline void click(QWidget& button)
{
    QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button.height() / 2));
}

inline void click(const QWidget& window, const char* name)
{
    click(part<QAbstractButton>(window, name));
}

/// A button of the row at the window's foot.
inline void press(const QWidget& window, QDialogButtonBox::StandardButton which)
{
    click(*window.findChild<QDialogButtonBox*>()->button(which));
}

inline void answer(const QWidget& question, QMessageBox::StandardButton which)
{
    click(*dynamic_cast<const QMessageBox&>(question).button(which));
}

/// Replaces the text key by key.
inline void type(QLineEdit& field, const QString& text)
{
    field.setFocus();
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_Delete);
    for (const QChar character : text) {
        QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, QString(character), Qt::NoModifier);
    }
}

inline void type(const QWidget& window, const char* name, const QString& text)
{
    type(part<QLineEdit>(window, name), text);
}

inline QString shown(const QWidget& window, const char* name)
{
    return part<QLabel>(window, name).text();
}

/// Windows that destroy themselves do it when the event loop turns.
inline void finishClosing()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}
