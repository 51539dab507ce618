// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/window/MessagePanel.h>

#include <workbench/mesh/MesherProcess.h>

#include <basemodule/IBaseSignal.h>

#include <QEvent>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QStyle>
#include <QTabWidget>
#include <QTime>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Workbench {
namespace {

constexpr int errorType = 2;
constexpr int mostMessages = 1000;
constexpr int mostLines = 5000;

} // namespace

MessagePanel::MessagePanel(QWidget* parent)
    : QWidget(parent), m_tabs(new QTabWidget(this)), m_messages(new QTreeWidget), m_output(new QPlainTextEdit)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tabs);
    m_tabs->setDocumentMode(true);
    m_tabs->addTab(m_messages, QString());
    m_tabs->addTab(m_output, QString());
    m_messages->setColumnCount(2);
    m_messages->setHeaderHidden(true);
    m_messages->setRootIsDecorated(false);
    m_messages->setWordWrap(true);
    m_messages->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_output->setReadOnly(true);
    m_output->setMaximumBlockCount(mostLines);
    m_output->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    connect(BaseModule::IBaseSignal::getInstance(), &BaseModule::IBaseSignal::signal_showMessageType, this,
            &MessagePanel::add);
    connect(MesherProcess::instance(), &MesherProcess::signal_started, m_output, &QPlainTextEdit::clear);
    connect(MesherProcess::instance(), &MesherProcess::signal_output, this, [this](const QString& text) {
        m_output->moveCursor(QTextCursor::End);
        m_output->insertPlainText(text);
    });
    retranslate();
}

void MessagePanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

void MessagePanel::retranslate()
{
    setWindowTitle(tr("Messages"));
    m_tabs->setTabText(0, tr("Messages"));
    m_tabs->setTabText(1, tr("Mesher output"));
}

void MessagePanel::add(int type, const QString& text)
{
    auto* item = new QTreeWidgetItem({QTime::currentTime().toString(QStringLiteral("HH:mm:ss")), text});
    const bool isError = type == errorType;
    item->setIcon(0, style()->standardIcon(isError ? QStyle::SP_MessageBoxCritical : QStyle::SP_MessageBoxInformation));
    item->setToolTip(1, text);
    m_messages->addTopLevelItem(item);
    delete m_messages->topLevelItem(m_messages->topLevelItemCount() > mostMessages ? 0 : -1);
    m_messages->resizeColumnToContents(0);
    m_messages->scrollToItem(item);
    if (isError) {
        m_tabs->setCurrentIndex(0);
    }
}

} // namespace Workbench
