// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTabBar>
#include <QTranslator>

/// Stands for a translation file: every text is itself behind a mark.
class MarkTranslator : public QTranslator
{
public:
    explicit MarkTranslator(const QString& mark) : m_mark(mark) {}
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* source, const char*, int) const override
    {
        return m_mark + QString::fromUtf8(source);
    }

private:
    QString m_mark;
};

inline void appendModelTexts(const QAbstractItemModel& model, const QModelIndex& parent, QStringList& texts)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        texts << model.headerData(row, Qt::Vertical).toString();
        for (int column = 0; column < model.columnCount(parent); ++column) {
            const QModelIndex index = model.index(row, column, parent);
            texts << index.data(Qt::DisplayRole).toString() << index.data(Qt::ToolTipRole).toString()
                  << index.data(Qt::AccessibleTextRole).toString();
        }
        appendModelTexts(model, model.index(row, 0, parent), texts);
    }
}

/// What a user can read of one widget, without those in it.
inline QStringList textsOf(const QWidget& widget)
{
    QStringList texts{widget.windowTitle(), widget.toolTip(), widget.accessibleName(), widget.accessibleDescription()};
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        texts << label->text();
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        texts << button->text();
    } else if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) {
        texts << box->title();
    } else if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
        texts << line->placeholderText();
    } else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i) {
            texts << tabs->tabText(i) << tabs->tabToolTip(i);
        }
    } else if (const auto* choice = qobject_cast<const QComboBox*>(&widget)) {
        for (int i = 0; i < choice->count(); ++i) {
            texts << choice->itemText(i);
        }
    } else if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget)) {
        for (int section = 0; view->model() != nullptr && section < view->model()->columnCount(); ++section) {
            texts << view->model()->headerData(section, Qt::Horizontal).toString();
        }
        if (view->model() != nullptr) {
            appendModelTexts(*view->model(), {}, texts);
        }
    }
    return texts;
}

inline QStringList allTextsOf(const QWidget& window)
{
    QStringList texts = textsOf(window);
    for (const QWidget* const widget : window.findChildren<QWidget*>()) {
        // The buttons that scroll tabs are Qt's own, and keep the names that they were made with.
        if (qobject_cast<const QTabBar*>(widget->parentWidget()) == nullptr) {
            texts << textsOf(*widget);
        }
    }
    texts.removeAll(QString());
    return texts;
}

/// Whether a user comes to this widget by the Tab key, and it is not a part of another one that tells its name.
inline bool isField(const QWidget& widget)
{
    const QWidget* const parent = widget.parentWidget();
    const bool isInner = qobject_cast<const QComboBox*>(parent) != nullptr ||
                         qobject_cast<const QAbstractSpinBox*>(parent) != nullptr ||
                         widget.inherits("QComboBoxListView") || qobject_cast<const QTabBar*>(&widget) != nullptr;
    return (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus && !isInner;
}

/// The fields without an accessible name, as "QLineEdit searchProject".
inline QStringList namelessFields(const QWidget& window)
{
    QStringList nameless;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        QAccessibleInterface* const told = isField(*widget) ? QAccessible::queryAccessibleInterface(widget) : nullptr;
        if (told != nullptr && told->text(QAccessible::Name).trimmed().isEmpty()) {
            nameless << QString::fromLatin1(widget->metaObject()->className()) + QLatin1Char(' ') +
                            widget->objectName();
        }
    }
    return nameless;
}
