// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/frame/CaseData.h>
#include <datamanager/frame/GeometryData.h>
#include <datamanager/frame/IdaIGeometryManager.h>
#include <datamanager/frame/IdaIMeshManager.h>
#include <datamanager/frame/InteractionManager.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QFile>
#include <QRegularExpression>
#include <QtTest>

#include <type_traits>

using namespace DataManager;
using BaseModule::InteractionMode;
using BaseModule::SelectModel;

namespace {

/// Can##NAME<Class>::value tells whether anybody may write the expression, in which `object` is a Class.
#define DETECT(NAME, EXPRESSION)                                                                                       \
    template <class Class, class = void>                                                                               \
    struct Can##NAME : std::false_type                                                                                 \
    {                                                                                                                  \
    };                                                                                                                 \
    template <class Class>                                                                                             \
    struct Can##NAME<Class, std::void_t<decltype(EXPRESSION)>> : std::true_type                                        \
    {                                                                                                                  \
    };

#define OBJECT std::declval<Class&>()
DETECT(AddSelectData, OBJECT.addSelectData(SelectModel(0), 0, 0))
DETECT(RemoveSelectData, OBJECT.removeSelectData(SelectModel(0), 0, 0))
DETECT(HasSameSelectedData, OBJECT.hasSameSelectedData(SelectModel(0), 0, 0))
DETECT(SetSelectModel, OBJECT.setSelectModel(SelectModel(0)))
DETECT(Click, OBJECT.clickViewObject(0, 0))
DETECT(UpdateInteractionMode, OBJECT.updateInteractionMode())
DETECT(GetInteractionModeStr, OBJECT.getInteractionModeStr(InteractionMode(0)))
DETECT(PrintInfo, OBJECT.printInfo())
DETECT(Restore, OBJECT.restoreInteractionMode())
DETECT(ReadInstance, Class::m_instance)
DETECT(ReadSelectedDataList, OBJECT.m_selectedDataList)
DETECT(ReadDataPool, OBJECT.m_dataPool)
DETECT(ReadMode, OBJECT.m_mode)
DETECT(ReadSetMaxID, OBJECT.m_setMaxID)
#undef OBJECT
#undef DETECT

/// The same names in public, so that a misspelt expression above does not pass for a private one.
struct AllPublic
{
    void addSelectData(SelectModel, int, int);
    void removeSelectData(SelectModel, int, int);
    bool hasSameSelectedData(SelectModel, int, int) const;
    void setSelectModel(SelectModel);
    void updateInteractionMode();
    QString getInteractionModeStr(InteractionMode);
    void printInfo();
    static AllPublic* m_instance;
    int m_selectedDataList;
    int m_dataPool;
    int m_mode;
    int m_setMaxID;
};

template <class Class>
bool isOutOfReach()
{
    return !std::is_default_constructible<Class>::value && !std::is_destructible<Class>::value &&
           !std::is_copy_constructible<Class>::value && !std::is_copy_assignable<Class>::value &&
           std::has_virtual_destructor<Class>::value && std::is_base_of<QObject, Class>::value;
}

template <class Class>
bool isInterface()
{
    return std::is_abstract<Class>::value && std::is_destructible<Class>::value &&
           std::has_virtual_destructor<Class>::value;
}

QString headerText(const char* path)
{
    QFile file(QStringLiteral(DATAMANAGER_SOURCE_DIR "/datamanager/") + QString::fromLatin1(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The fields that a header declares in order, each as "type name".
QStringList fieldsOf(const char* path)
{
    const QRegularExpression declaration(QStringLiteral("^    ([\\w:<>* ,]+ m_\\w+)(?: = [^;]+)?;"),
                                         QRegularExpression::MultilineOption);
    QStringList fields;
    for (auto match = declaration.globalMatch(headerText(path)); match.hasNext();) {
        fields.append(match.next().captured(1));
    }
    return fields;
}

/// The access level under which a header declares `declaration`.
QString accessOf(const char* path, const char* declaration)
{
    const QString text = headerText(path);
    const int place = text.indexOf(QString::fromLatin1(declaration));
    const QRegularExpression level(QStringLiteral("^(public|protected|private):"), QRegularExpression::MultilineOption);
    QRegularExpressionMatch match;
    return place >= 0 && text.lastIndexOf(level, place, &match) >= 0 ? match.captured(1) : QString();
}

} // namespace

/// Compiled like an application, without access to anything private.
class tst_AccessLevels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void singletonsAreMadeByTheirAccessorsOnly();
    void interfacesAreForDerivedManagers();
    void operationsKeepTheirLevel();
    void fieldsArePrivate();
    void fieldsAreDeclaredInOrder_data();
    void fieldsAreDeclaredInOrder();
};

void tst_AccessLevels::singletonsAreMadeByTheirAccessorsOnly()
{
    QVERIFY(isOutOfReach<SelectedDataManager>());
    QVERIFY(isOutOfReach<InteractionManager>());
    QVERIFY(isOutOfReach<CaseData>());
    QVERIFY(isOutOfReach<GeometryData>());
    QVERIFY(!isOutOfReach<QObject>());
}

void tst_AccessLevels::interfacesAreForDerivedManagers()
{
    QVERIFY(isInterface<IdaIGeometryManager>());
    QVERIFY(isInterface<IdaIMeshManager>());
    QCOMPARE(accessOf("frame/IdaIGeometryManager.h", " IdaIGeometryManager();"), QStringLiteral("protected"));
    QCOMPARE(accessOf("frame/IdaIMeshManager.h", " IdaIMeshManager();"), QStringLiteral("protected"));
}

void tst_AccessLevels::operationsKeepTheirLevel()
{
    QVERIFY(CanAddSelectData<AllPublic>::value && !CanAddSelectData<SelectedDataManager>::value);
    QVERIFY(CanRemoveSelectData<AllPublic>::value && !CanRemoveSelectData<SelectedDataManager>::value);
    QVERIFY(CanHasSameSelectedData<AllPublic>::value && !CanHasSameSelectedData<SelectedDataManager>::value);
    QVERIFY(CanSetSelectModel<AllPublic>::value && !CanSetSelectModel<SelectedDataManager>::value);
    QVERIFY(CanClick<SelectedDataManager>::value);
    QVERIFY(CanUpdateInteractionMode<AllPublic>::value && !CanUpdateInteractionMode<InteractionManager>::value);
    QVERIFY(CanGetInteractionModeStr<AllPublic>::value && !CanGetInteractionModeStr<InteractionManager>::value);
    QVERIFY(CanPrintInfo<AllPublic>::value && !CanPrintInfo<InteractionManager>::value);
    QVERIFY(CanRestore<InteractionManager>::value);
    // Private is more than protected, which the above cannot tell apart.
    for (const char* const name : {"addSelectData", "removeSelectData", "hasSameSelectedData", "setSelectModel("}) {
        QCOMPARE(accessOf("selection/SelectedDataManager.h", name), QStringLiteral("private"));
    }
    for (const char* const name : {"updateInteractionMode", "getInteractionModeStr", "printInfo"}) {
        QCOMPARE(accessOf("frame/InteractionManager.h", name), QStringLiteral("private"));
    }
}

void tst_AccessLevels::fieldsArePrivate()
{
    QVERIFY(CanReadInstance<AllPublic>::value && !CanReadInstance<SelectedDataManager>::value);
    QVERIFY(!CanReadInstance<InteractionManager>::value && !CanReadInstance<CaseData>::value &&
            !CanReadInstance<GeometryData>::value);
    QVERIFY(CanReadSelectedDataList<AllPublic>::value && !CanReadSelectedDataList<SelectedDataManager>::value);
    QVERIFY(CanReadDataPool<AllPublic>::value && !CanReadDataPool<SelectedDataManager>::value);
    QVERIFY(CanReadMode<AllPublic>::value && !CanReadMode<InteractionManager>::value);
    QVERIFY(CanReadSetMaxID<AllPublic>::value && !CanReadSetMaxID<IdaIGeometryManager>::value);
    QVERIFY(!CanReadSetMaxID<IdaIMeshManager>::value);
}

void tst_AccessLevels::fieldsAreDeclaredInOrder_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<QStringList>("fields");
    const auto texts = [](std::initializer_list<const char*> fields) {
        QStringList list;
        for (const char* const field : fields) {
            list.append(QString::fromLatin1(field));
        }
        return list;
    };
    QTest::newRow("SelectedDataManager") << QByteArray("selection/SelectedDataManager.h")
                                         << texts({"static SelectedDataManager* m_instance",
                                                   "QList<DataModel::SelectedDataBase*> m_selectedDataList",
                                                   "BaseModule::SelectModel m_selectModel", "bool m_isPoolClosed",
                                                   "std::deque<DataModel::SelectedDataBase*> m_dataPool",
                                                   "bool m_isHighLightCheckEnable", "bool m_isCanSwitchSelectModel",
                                                   "BaseModule::SelectModel m_mainWindowSelectModel"});
    QTest::newRow("InteractionManager") << QByteArray("frame/InteractionManager.h")
                                        << texts({"static InteractionManager* m_instance",
                                                  "BaseModule::InteractionMode m_mode",
                                                  "BaseModule::InteractionMode m_currentMode",
                                                  "bool m_isMultipleSelect"});
    QTest::newRow("IdaIGeometryManager") << QByteArray("frame/IdaIGeometryManager.h")
                                         << texts({"int m_setMaxID", "int m_componentMaxID"});
    QTest::newRow("IdaIMeshManager") << QByteArray("frame/IdaIMeshManager.h")
                                     << texts({"int m_setMaxID", "int m_kernelMaxID"});
    QTest::newRow("CaseData") << QByteArray("frame/CaseData.h") << texts({"static CaseData* m_instance"});
    QTest::newRow("GeometryData") << QByteArray("frame/GeometryData.h") << texts({"static GeometryData* m_instance"});
}

void tst_AccessLevels::fieldsAreDeclaredInOrder()
{
    QFETCH(QByteArray, header);
    QFETCH(QStringList, fields);
    QCOMPARE(fieldsOf(header.constData()), fields);
}

QTEST_GUILESS_MAIN(tst_AccessLevels)
#include "tst_accesslevels.moc"
