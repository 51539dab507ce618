// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDateManager.h>

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <type_traits>

using BaseModule::CoordinateSystemType;
using BaseWidget::FixedPixelSizeAxesActor;
using DataManager::RelativeCoordinateSystem;
using DataManager::RelativeCoordinateSystemDate;
using DataManager::RelativeCoordinateSystemDateManager;

// Names and access as applications compile against them; this program has no private access.

namespace {

using System = RelativeCoordinateSystem;
using Registry = RelativeCoordinateSystemDate;
using Record = RelativeCoordinateSystemDateManager;
template <class Value>
using Chain = QList<QPair<int, Value>>;
using Step = QPair<QString, double>;

static_assert(std::is_base_of_v<QObject, System> && std::has_virtual_destructor_v<System>);
static_assert(std::is_default_constructible_v<System> && std::is_destructible_v<System>);
static_assert(std::is_base_of_v<QObject, Record> && std::has_virtual_destructor_v<Record>);
static_assert(std::is_default_constructible_v<Record> && std::is_destructible_v<Record>);
static_assert(std::is_base_of_v<QObject, Registry> && std::has_virtual_destructor_v<Registry>);
static_assert(!std::is_default_constructible_v<Registry> && !std::is_destructible_v<Registry>);
static_assert(!std::is_copy_constructible_v<System> && !std::is_copy_constructible_v<Registry>);

/// Whether `Member` can be named from outside for `Class`.
template <template <class> class Member, class Class, class = void>
constexpr bool isPublic = false;
template <template <class> class Member, class Class>
constexpr bool isPublic<Member, Class, std::void_t<Member<Class>>> = true;

#define MEMBER(name)                                                                                                   \
    template <class Class>                                                                                             \
    using Of_##name = decltype(&Class::name)
#define PRIVATE_MEMBER(Class, name)                                                                                    \
    MEMBER(name);                                                                                                      \
    static_assert(!isPublic<Of_##name, Class>, #name " is private")

MEMBER(getID);
static_assert(isPublic<Of_getID, System>, "the check finds public members");

PRIVATE_MEMBER(System, m_idOffset);
PRIVATE_MEMBER(System, m_property);
PRIVATE_MEMBER(System, m_ID);
PRIVATE_MEMBER(System, m_basicCoordinateSystemID);
PRIVATE_MEMBER(System, m_name);
PRIVATE_MEMBER(System, m_type);
PRIVATE_MEMBER(System, m_typePairList);
PRIVATE_MEMBER(System, m_offsetCoordinate);
PRIVATE_MEMBER(System, m_offsetCoordinatePairList);
PRIVATE_MEMBER(System, m_rotateDirection);
PRIVATE_MEMBER(System, m_rotateDirectionPairList);
PRIVATE_MEMBER(System, m_actorRotateDirection);
PRIVATE_MEMBER(System, m_actorRotateDirPairList);
PRIVATE_MEMBER(System, m_actor);
PRIVATE_MEMBER(System, m_actorMatrix);
PRIVATE_MEMBER(System, m_actorQuaternion);
PRIVATE_MEMBER(Registry, _instance);
PRIVATE_MEMBER(Registry, m_coordinateSystemList);
PRIVATE_MEMBER(Registry, m_currentCoordinateSystemID);
PRIVATE_MEMBER(Registry, m_newCoordinateSystemSign);
PRIVATE_MEMBER(Registry, m_switchCoordinateSystemSign);
PRIVATE_MEMBER(Registry, m_dataManager);

/// Whether a pointer to a public member can be called with these arguments on an object, and gives exactly `Result`.
template <class Result, class... Arguments>
struct Gives
{
    template <class Call>
    static constexpr bool from(Call)
    {
        return std::is_same_v<std::invoke_result_t<Call, Arguments...>, Result>;
    }
};

static_assert(Gives<int>::from(&System::getMaxID) && Gives<void>::from(&System::resetMaxID));
static_assert(Gives<int, System&>::from(&System::getID) && Gives<void, System&, int>::from(&System::setID));
static_assert(Gives<int, System&>::from(&System::getBasicCoordinateSystemID));
static_assert(Gives<void, System&, int>::from(&System::setBasicCoordinateSystemID));
static_assert(Gives<QString, System&>::from(&System::getName) && Gives<void, System&, QString>::from(&System::setName));
static_assert(Gives<FixedPixelSizeAxesActor*, System&>::from(&System::getActor));
static_assert(Gives<void, System&, FixedPixelSizeAxesActor*>::from(&System::setActor));
static_assert(Gives<vtkMatrix4x4*, System&>::from(&System::getActorMatrix));
static_assert(Gives<void, System&, vtkMatrix4x4*>::from(&System::setActorMatrix));
static_assert(Gives<double*, System&>::from(&System::getActorQuaternion));
static_assert(Gives<void, System&, double*>::from(&System::setActorQuaternion));
static_assert(Gives<void, System&, CoordinateSystemType, int, int, int>::from(&System::setType));
static_assert(Gives<void, System&, double*, int, int, int>::from(&System::setOffsetCoordinate));
static_assert(Gives<void, System&, double*, int, int, int>::from(&System::setRotateDirection));
static_assert(Gives<void, System&, Step, int, int, int>::from(&System::setActorRotateDirection));
static_assert(Gives<CoordinateSystemType, System&>::from(&System::getType));
static_assert(Gives<double*, System&>::from(&System::getOffsetCoordinate));
static_assert(Gives<QList<QList<double>>, System&>::from(&System::getRotateDirection));
static_assert(Gives<QList<Step>, System&>::from(&System::getActorRotateDirection));
static_assert(Gives<Chain<CoordinateSystemType>, System&>::from(&System::getTypePairList));
static_assert(Gives<Chain<QList<double>>, System&>::from(&System::getOffsetCoordinateListPairList));
static_assert(Gives<Chain<QList<double>>, System&>::from(&System::getRotateDirectionListPairList));
static_assert(Gives<Chain<Step>, System&>::from(&System::getActorRoateDirPairPairList));
static_assert(Gives<DataModel::PropertyTableData*, System&>::from(&System::getProperty));
static_assert(Gives<void, System&>::from(&System::printRelativeCoordinateSystem));

static_assert(Gives<Registry*>::from(&Registry::getInstance));
static_assert(Gives<void, Registry&, System*>::from(&Registry::appendCoordinateSystem));
static_assert(Gives<int, Registry&>::from(&Registry::getRelativeCoordinateSystemDateCount));
static_assert(Gives<System*, Registry&, int>::from(&Registry::getCoordinateSystemByID));
static_assert(Gives<System*, Registry&, int>::from(&Registry::getCoordinateSystemByIndex));
static_assert(Gives<int, Registry&, int>::from(&Registry::getCoordinateSystemIndexByID));
static_assert(Gives<int, Registry&, System*>::from(&Registry::getIndexByCoordinateSystem));
static_assert(Gives<void, Registry&, QList<int>>::from(&Registry::removeCoordinateSystemByID));
static_assert(Gives<void, Registry&, int>::from(&Registry::removeCoordinateSystemByIndex));
static_assert(Gives<void, Registry&>::from(&Registry::clear) && Gives<void, Registry&>::from(&Registry::resetData));
static_assert(Gives<void, Registry&>::from(&Registry::sort));
static_assert(Gives<void, Registry&, int>::from(&Registry::setCurrentCoordinateSystemID));
static_assert(Gives<int, Registry&>::from(&Registry::getCurrentCoordinateSystemID));
static_assert(Gives<void, Registry&, bool>::from(&Registry::setNeWCoordinateSystemSign));
static_assert(Gives<bool, Registry&>::from(&Registry::getNeWCoordinateSystemSign));
static_assert(Gives<void, Registry&, bool>::from(&Registry::setSwitchCoordinateSystemSign));
static_assert(Gives<bool, Registry&>::from(&Registry::getSwitchCoordinateSystemSign));
static_assert(Gives<void, Registry&>::from(&Registry::readConfig));
static_assert(Gives<void, Registry&>::from(&Registry::writeConfig));
static_assert(Gives<void, Registry&, QByteArray*>::from(&Registry::dataToByteArray));
static_assert(Gives<void, Registry&, double*, int>::from(&Registry::getCSRotateDirection));
static_assert(Gives<void, Registry&, QList<int>>::from(&Registry::signal_dataChanged));
static_assert(Gives<void, Registry&, QList<int>>::from(&Registry::signal_dataDeleted));

/// The declarations of data behind the last "private:" of a header, without initial values.
QStringList fieldsOf(const QString& header)
{
    QFile file(QStringLiteral(DATAMANAGER_SOURCE_DIR "/datamanager/coordinates/") + header);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QString text = QString::fromUtf8(file.readAll());
    const QRegularExpression declaration(QStringLiteral("^    ([^/()=;]+_[^()=;]+?)( = [^;]+)?;$"),
                                         QRegularExpression::MultilineOption);
    QStringList fields;
    auto matches = declaration.globalMatch(text.mid(text.lastIndexOf(QStringLiteral("private:"))));
    while (matches.hasNext()) {
        fields.append(matches.next().captured(1));
    }
    return fields;
}

QStringList lines(const QVector<const char*>& texts)
{
    QStringList list;
    for (const char* text : texts) {
        list.append(QString::fromLatin1(text));
    }
    return list;
}

} // namespace

class CoordinateInterfacesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Before any system is made.
    void initTestCase() { QCOMPARE(System::getMaxID(), 0); }

    void declareTheirFieldsInOrder_data()
    {
        QTest::addColumn<QString>("header");
        QTest::addColumn<QStringList>("fields");
        QTest::newRow("system") << QStringLiteral("RelativeCoordinateSystem.h")
                                << lines({"static int m_idOffset", "DataModel::PropertyTableData m_property",
                                          "int m_ID", "int m_basicCoordinateSystemID", "QString m_name",
                                          "BaseModule::CoordinateSystemType m_type",
                                          "QList<QPair<int, BaseModule::CoordinateSystemType>> m_typePairList",
                                          "double m_offsetCoordinate[3]",
                                          "QList<QPair<int, QList<double>>> m_offsetCoordinatePairList",
                                          "QList<QList<double>> m_rotateDirection",
                                          "QList<QPair<int, QList<double>>> m_rotateDirectionPairList",
                                          "QList<QPair<QString, double>> m_actorRotateDirection",
                                          "QList<QPair<int, QPair<QString, double>>> m_actorRotateDirPairList",
                                          "BaseWidget::FixedPixelSizeAxesActor* m_actor", "vtkMatrix4x4* m_actorMatrix",
                                          "double m_actorQuaternion[4]"});
        QTest::newRow("registry") << QStringLiteral("RelativeCoordinateSystemDate.h")
                                  << lines({"static RelativeCoordinateSystemDate* _instance",
                                            "QList<RelativeCoordinateSystem*> m_coordinateSystemList",
                                            "int m_currentCoordinateSystemID", "bool m_newCoordinateSystemSign",
                                            "bool m_switchCoordinateSystemSign",
                                            "QSharedPointer<RelativeCoordinateSystemDateManager> m_dataManager"});
        QTest::newRow("record") << QStringLiteral("RelativeCoordinateSystemDateManager.h")
                                << lines({"QList<int> m_IDList", "QList<int> m_basicCoorSysIDList",
                                          "QList<QString> m_nameList", "QList<QString> m_typeList",
                                          "QList<QString> m_offsetCoordinateList",
                                          "QList<QString> m_rotateDirectionList",
                                          "QList<QString> m_actorRoateDirList"});
    }
    void declareTheirFieldsInOrder()
    {
        QFETCH(QString, header);
        QFETCH(QStringList, fields);
        QCOMPARE(fieldsOf(header), fields);
    }
};

QTEST_APPLESS_MAIN(CoordinateInterfacesTest)
#include "tst_coordinateinterfaces.moc"
