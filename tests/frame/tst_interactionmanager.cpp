// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/frame/InteractionManager.h>
#include <datamanager/selection/SelectedDataManager.h>
#include <datamodel/SelectedDataBase.h>
#include <support/SignalLog.h>

#include <QKeyEvent>
#include <QMetaMethod>
#include <QtTest>

#include <functional>

using BaseModule::InteractionMode;
using BaseModule::SelectModel;
using DataManager::InteractionManager;
using DataManager::SelectedDataManager;

using Script = std::function<void(InteractionManager&)>;
Q_DECLARE_METATYPE(Script)

namespace {

InteractionManager& manager()
{
    return *InteractionManager::getInstance();
}

/// What a listener reads: effective mode, persistent mode, multiple selection, number of selected items.
QString state()
{
    return QStringLiteral("%1 %2 %3 %4")
        .arg(int(manager().getInteractionMode()))
        .arg(int(manager().m_mode))
        .arg(manager().isActiveMultipleSelect())
        .arg(SelectedDataManager::getInstance()->getDataCount());
}

Script choosing(int mode)
{
    return [mode](InteractionManager& m) { m.setInteractionMode(InteractionMode(mode)); };
}

Script overriding(int mode)
{
    return [mode](InteractionManager& m) { m.setInteractionModeTemp(InteractionMode(mode)); };
}

Script pressing(int key, bool isRepeat = false)
{
    return [key, isRepeat](InteractionManager& m) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(), isRepeat);
        m.onKeyPress(&event);
    };
}

Script releasing(int key, bool isRepeat = false)
{
    return [key, isRepeat](InteractionManager& m) {
        QKeyEvent event(QEvent::KeyRelease, key, Qt::NoModifier, QString(), isRepeat);
        m.onKeyRelease(&event);
    };
}

/// The two announcing signals with this state behind each.
QStringList announced(const char* text)
{
    const QString ending = QStringLiteral(" | ") + QString::fromLatin1(text);
    return {QStringLiteral("updateInteraction") + ending, QStringLiteral("updateMenuActionState") + ending};
}

QStringList chosen(const char* text)
{
    return announced(text) << QStringLiteral("refreshActionOnInteractionChanged | ") + QString::fromLatin1(text);
}

const int shift = Qt::Key_Shift;
const int control = Qt::Key_Control;
const int alt = Qt::Key_Alt;

} // namespace

class tst_InteractionManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsSelecting();
    void holdsItsFieldsInOrder();
    void init();
    void announces_data();
    void announces();
    void silentCallsChangeNothing_data();
    void silentCallsChangeNothing();
    void releasingControlEndsMultipleSelectionWhileDrawing();
    void printsModes_data();
    void printsModes();
    void privateOperationsChangeNothing();
    void ignoresMissingEvents();
};

/// Runs first, on the manager as its accessor makes it.
void tst_InteractionManager::startsSelecting()
{
    QCOMPARE(InteractionManager::getInstance(), InteractionManager::getInstance());
    QVERIFY(manager().parent() == nullptr);
    const InteractionManager fresh;
    QCOMPARE(fresh.m_mode, BaseModule::Select);
    QCOMPARE(fresh.m_currentMode, BaseModule::Select);
    QVERIFY(!fresh.m_isMultipleSelect);
    QCOMPARE(InteractionManager::staticMetaObject.methodCount(), QObject::staticMetaObject.methodCount());
}

void tst_InteractionManager::holdsItsFieldsInOrder()
{
    const auto offset = [](const void* field) {
        return static_cast<const char*>(field) - reinterpret_cast<const char*>(&manager());
    };
    QCOMPARE(offset(&manager().m_mode), qptrdiff(sizeof(QObject)));
    QCOMPARE(offset(&manager().m_currentMode), qptrdiff(sizeof(QObject) + sizeof(int)));
    QCOMPARE(offset(&manager().m_isMultipleSelect), qptrdiff(sizeof(QObject) + 2 * sizeof(int)));
}

void tst_InteractionManager::init()
{
    SelectedDataManager& store = *SelectedDataManager::getInstance();
    store.clearAllSelectedTarget();
    store.init();
    store.addSelectedTargetList(SelectModel(2), {{1, 0}, {3, 4}});
    manager().setInteractionMode(BaseModule::Select);
    manager().restoreInteractionMode();
}

void tst_InteractionManager::announces_data()
{
    QTest::addColumn<QList<Script>>("before");
    QTest::addColumn<Script>("call");
    QTest::addColumn<QStringList>("signals_");
    using Scripts = QList<Script>;
    const Scripts none;

    for (const int mode : {-1, 0, 1, 2, 3, 5}) {
        const QByteArray text = QByteArray::number(mode) + ' ' + QByteArray::number(mode) + " 0 2";
        QTest::addRow("mode %d", mode) << none << choosing(mode) << chosen(text.constData());
    }
    QTest::newRow("drawing") << none << choosing(4)
                             << (QStringList{QStringLiteral("updateViewObjectState 2 (1,0) 0 | 1 1 0 2"),
                                             QStringLiteral("updateViewObjectState 2 (3,4) 0 | 1 1 0 2"),
                                             QStringLiteral("updateGeomrtryActorTransparency 0 | 1 1 0 0"),
                                             QStringLiteral("clearAllHighLight | 1 1 0 0"),
                                             QStringLiteral("refreshActionOnSelectDataChanged | 1 1 0 0")} +
                                 chosen("4 4 0 0"));
    QTest::newRow("a mode leaves multiple selection") << Scripts{pressing(control)} << choosing(3) << chosen("3 3 1 2");
    QTest::newRow("a mode ends an override") << Scripts{overriding(3)} << choosing(2) << chosen("2 2 0 2");
    QTest::newRow("override") << Scripts{choosing(2)} << overriding(3) << announced("3 2 0 2");
    QTest::newRow("override keeps multiple selection")
        << Scripts{pressing(control)} << overriding(3) << announced("3 1 1 2");
    QTest::newRow("override by drawing keeps the selection") << none << overriding(4) << announced("4 1 0 2");
    QTest::newRow("restore") << Scripts{choosing(2), pressing(control), overriding(3)}
                             << Script([](InteractionManager& m) { m.restoreInteractionMode(); })
                             << announced("2 2 0 2");

    QTest::newRow("shift") << Scripts{choosing(2)} << pressing(shift) << announced("3 2 0 2");
    QTest::newRow("control") << Scripts{choosing(2)} << pressing(control) << announced("1 2 1 2");
    QTest::newRow("alt") << none << pressing(alt) << announced("2 1 0 2");
    QTest::newRow("shift while drawing") << Scripts{choosing(4)} << pressing(shift) << announced("3 4 0 0");
    QTest::newRow("control while drawing") << Scripts{choosing(4)} << pressing(control) << QStringList();
    QTest::newRow("alt while drawing") << Scripts{choosing(4)} << pressing(alt) << announced("2 4 0 0");
    QTest::newRow("control while drawing is overridden")
        << Scripts{choosing(4), pressing(shift)} << pressing(control) << announced("1 4 1 0");
    QTest::newRow("control while overridden by drawing")
        << Scripts{overriding(4)} << pressing(control) << QStringList();
    QTest::newRow("alt over control") << Scripts{pressing(control)} << pressing(alt) << announced("2 1 1 2");
    QTest::newRow("control over shift") << Scripts{pressing(shift)} << pressing(control) << announced("1 1 1 2");
    QTest::newRow("the same key again") << Scripts{pressing(shift)} << pressing(shift) << announced("3 1 0 2");
    QTest::newRow("another key") << none << pressing(Qt::Key_A) << QStringList();
    QTest::newRow("meta") << none << pressing(Qt::Key_Meta) << QStringList();

    QTest::newRow("shift released") << Scripts{choosing(2), pressing(shift)} << releasing(shift)
                                    << announced("2 2 0 2");
    QTest::newRow("control released") << Scripts{choosing(2), pressing(control)} << releasing(control)
                                      << announced("2 2 0 2");
    QTest::newRow("alt released") << Scripts{choosing(3), pressing(alt)} << releasing(alt) << announced("3 3 0 2");
    QTest::newRow("shift released, control still held")
        << Scripts{choosing(2), pressing(control), pressing(shift)} << releasing(shift) << announced("2 2 0 2");
    QTest::newRow("alt released, control still held")
        << Scripts{choosing(2), pressing(control), pressing(alt)} << releasing(alt) << announced("2 2 0 2");
    QTest::newRow("control released, shift still held")
        << Scripts{choosing(2), pressing(control), pressing(shift)} << releasing(control) << announced("2 2 0 2");
    QTest::newRow("shift released while drawing")
        << Scripts{choosing(4), pressing(shift)} << releasing(shift) << announced("4 4 0 0");
    QTest::newRow("alt released while drawing")
        << Scripts{choosing(4), pressing(alt)} << releasing(alt) << announced("4 4 0 0");
    QTest::newRow("control released while drawing")
        << Scripts{choosing(4), pressing(control)} << releasing(control) << QStringList();
    QTest::newRow("drawing chosen while control is held")
        << Scripts{pressing(control), choosing(4)} << releasing(control) << QStringList();
    QTest::newRow("released without a press") << none << releasing(alt) << announced("1 1 0 2");
    QTest::newRow("another key released") << Scripts{pressing(shift)} << releasing(Qt::Key_A) << QStringList();

    for (const int key : {shift, control, alt}) {
        QTest::addRow("repeated press of %x", unsigned(key)) << none << pressing(key, true) << QStringList();
        QTest::addRow("repeated release of %x", unsigned(key))
            << Scripts{pressing(key)} << releasing(key, true) << QStringList();
    }
}

void tst_InteractionManager::announces()
{
    QFETCH(QList<Script>, before);
    QFETCH(Script, call);
    QFETCH(QStringList, signals_);
    for (const Script& script : before) {
        script(manager());
    }
    SignalLog log(state);
    call(manager());
    QCOMPARE(log.take(), signals_);
}

void tst_InteractionManager::silentCallsChangeNothing_data()
{
    QTest::addColumn<Script>("call");
    for (const int key : {shift, control, alt}) {
        QTest::addRow("repeated press of %x", unsigned(key)) << pressing(key, true);
        QTest::addRow("repeated release of %x", unsigned(key)) << releasing(key, true);
    }
    QTest::newRow("press of another key") << pressing(Qt::Key_A);
    QTest::newRow("release of another key") << releasing(Qt::Key_A);
}

/// On a state that no key has by itself, so that any effect shows.
void tst_InteractionManager::silentCallsChangeNothing()
{
    QFETCH(Script, call);
    manager().m_currentMode = BaseModule::Translate;
    manager().m_mode = InteractionMode(5);
    manager().m_isMultipleSelect = true;
    const QString before = state();
    SignalLog log;
    call(manager());
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(state(), before);
}

void tst_InteractionManager::releasingControlEndsMultipleSelectionWhileDrawing()
{
    pressing(control)(manager());
    choosing(4)(manager());
    QVERIFY(manager().isActiveMultipleSelect());
    QCOMPARE(SelectedDataManager::getInstance()->getDataCount(), 0);
    SignalLog log;
    releasing(control)(manager());
    QVERIFY(!manager().isActiveMultipleSelect());
    QCOMPARE(manager().getInteractionMode(), BaseModule::MouseDraw);
    QCOMPARE(log.take(), QStringList());
}

void tst_InteractionManager::printsModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("name");
    QTest::newRow("-1") << -1 << QStringLiteral("Undefine");
    QTest::newRow("0") << 0 << QStringLiteral("Undefine");
    QTest::newRow("1") << 1 << QStringLiteral("Select");
    QTest::newRow("2") << 2 << QStringLiteral("Rotate");
    QTest::newRow("3") << 3 << QStringLiteral("Translate");
    QTest::newRow("4") << 4 << QStringLiteral("MouseDraw");
    QTest::newRow("5") << 5 << QStringLiteral("Undefine");
}

void tst_InteractionManager::printsModes()
{
    QFETCH(int, mode);
    QFETCH(QString, name);
    QCOMPARE(manager().getInteractionModeStr(InteractionMode(mode)), name);
}

void tst_InteractionManager::privateOperationsChangeNothing()
{
    const QString before = state();
    SignalLog log(state);
    manager().printInfo();
    QCOMPARE(log.take(), QStringList());
    manager().updateInteractionMode();
    QCOMPARE(log.take(), announced(before.toLatin1().constData()));
    QCOMPARE(state(), before);
}

void tst_InteractionManager::ignoresMissingEvents()
{
    SignalLog log;
    manager().onKeyPress(nullptr);
    manager().onKeyRelease(nullptr);
    QCOMPARE(log.take(), QStringList());
}

QTEST_GUILESS_MAIN(tst_InteractionManager)
#include "tst_interactionmanager.moc"
