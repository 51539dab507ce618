// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/coordinates/private/StoredSystems.h>

#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDateManager.h>

#include <basemodule/GlobalHelper.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

using BaseModule::CoordinateSystemType;
using BaseModule::GlobalHelper;

namespace DataManager {

namespace {

QString typeText(const QList<QPair<int, CoordinateSystemType>>& chain)
{
    QList<QPair<int, int>> levels;
    levels.reserve(chain.size());
    for (const auto& level : chain) {
        levels.append({level.first, level.second});
    }
    return GlobalHelper::convertIntIntQListToQString(levels);
}

template <class Value, QString (*ValueText)(Value)>
QString chainText(const QList<QPair<int, Value>>& chain)
{
    QList<QPair<int, QString>> levels;
    levels.reserve(chain.size());
    for (const auto& level : chain) {
        levels.append({level.first, ValueText(level.second)});
    }
    return GlobalHelper::convertIntQStringQListToQString(levels);
}

constexpr auto vectorText = chainText<QList<double>, GlobalHelper::convertDoubleListToQString>;
constexpr auto stepText = chainText<QPair<QString, double>, GlobalHelper::convertQStringDoubleQPairToQString>;

/// The text of a chain, as long as the chain stays as it is.
template <class Value>
class KnownText
{
public:
    using Chain = QList<QPair<int, Value>>;

    /// Sharing decides, not equality, for which 0.0 is -0.0. Whoever changes a chain detaches it from the copy held
    /// here, and as long as that is held no other chain can have its address.
    void follow(const Chain& chain, QString (*textOf)(const Chain&))
    {
        if (!m_chain.isSharedWith(chain)) {
            m_text = textOf(chain);
            m_chain = chain;
        }
    }

    const QString& text() const { return m_text; }

private:
    Chain m_chain;
    /// That of the empty chain, at first.
    QString m_text;
};

/// The texts of a system's four chains.
struct ChainTexts
{
    void follow(const RelativeCoordinateSystem& system)
    {
        types.follow(system.getTypePairList(), typeText);
        offsets.follow(system.getOffsetCoordinateListPairList(), vectorText);
        rotations.follow(system.getRotateDirectionListPairList(), vectorText);
        actorRotations.follow(system.getActorRoateDirPairPairList(), stepText);
    }

    KnownText<CoordinateSystemType> types;
    KnownText<QList<double>> offsets;
    KnownText<QList<double>> rotations;
    KnownText<QPair<QString, double>> actorRotations;
};

/// The texts of all systems but the first. Those of the last call are kept, because a rebuild writes all systems once
/// for each of them; those of systems that are not written any more are dropped. Like the registry, what is kept is
/// never destroyed, so that writing works while the process ends.
std::vector<ChainTexts> chainTextsOf(const QList<RelativeCoordinateSystem*>& systems)
{
    using TextsOfSystem = std::unordered_map<const RelativeCoordinateSystem*, ChainTexts>;
    static auto* const lastWritten = new TextsOfSystem;
    TextsOfSystem written;
    std::vector<ChainTexts> all;
    for (int i = 1; i < systems.size(); ++i) {
        const auto known = lastWritten->find(systems.at(i));
        ChainTexts texts = known == lastWritten->end() ? ChainTexts() : known->second;
        texts.follow(*systems.at(i));
        written[systems.at(i)] = texts;
        all.push_back(std::move(texts));
    }
    *lastWritten = std::move(written);
    return all;
}

template <class Element, class Describe>
QList<Element> describeAll(const QList<RelativeCoordinateSystem*>& systems, Describe describe)
{
    QList<Element> elements;
    for (int i = 1; i < systems.size(); ++i) {
        elements.append(describe(*systems.at(i)));
    }
    return elements;
}

template <class Choose>
QList<QString> textsOf(const std::vector<ChainTexts>& systems, Choose choose)
{
    QList<QString> texts;
    texts.reserve(static_cast<int>(systems.size()));
    std::transform(systems.begin(), systems.end(), std::back_inserter(texts), choose);
    return texts;
}

/// Where setting the levels of a stored chain one after the other has to begin: each level of an owner of 1 or more
/// starts afresh from the chain of the basic system, so nothing remains of the levels before the last such one.
template <class Value>
int firstEffectiveLevel(const QList<QPair<int, Value>>& levels, int basicID)
{
    if (RelativeCoordinateSystemDate::getInstance()->getCoordinateSystemByID(basicID) == nullptr) {
        return 0;
    }
    const auto startsAfresh = [](const QPair<int, Value>& level) { return level.first >= 1; };
    const auto last = std::find_if(levels.rbegin(), levels.rend(), startsAfresh);
    return last == levels.rend() ? 0 : static_cast<int>(levels.rend() - last) - 1;
}

template <class Value, class SetLevel>
void setLevels(const QList<QPair<int, Value>>& levels, int basicID, SetLevel setLevel)
{
    for (int i = firstEffectiveLevel(levels, basicID); i < levels.size(); ++i) {
        setLevel(levels.at(i).first, levels.at(i).second);
    }
}

/// The levels of a chain of vectors; those with fewer than three doubles are left out.
QList<QPair<int, QList<double>>> parseVectors(const QString& text)
{
    QList<QPair<int, QList<double>>> levels;
    for (const auto& level : GlobalHelper::convertStringToIntQStringQList(text)) {
        const QList<double> vector = GlobalHelper::convertStringToDoubleList(level.second);
        if (vector.size() >= 3) {
            levels.append({level.first, vector});
        }
    }
    return levels;
}

} // namespace

void storeSystems(const QList<RelativeCoordinateSystem*>& systems, RelativeCoordinateSystemDateManager& record)
{
    using System = RelativeCoordinateSystem;
    record.setIDList(describeAll<int>(systems, [](const System& system) { return system.getID(); }));
    record.setBasicCoorSysIDList(
        describeAll<int>(systems, [](const System& system) { return system.getBasicCoordinateSystemID(); }));
    record.setNameList(describeAll<QString>(systems, [](const System& system) { return system.getName(); }));
    const std::vector<ChainTexts> texts = chainTextsOf(systems);
    record.setTypeList(textsOf(texts, [](const ChainTexts& chains) { return chains.types.text(); }));
    record.setOffsetCoordinateList(textsOf(texts, [](const ChainTexts& chains) { return chains.offsets.text(); }));
    record.setRotateDirectionList(textsOf(texts, [](const ChainTexts& chains) { return chains.rotations.text(); }));
    record.setActorRoateDirList(textsOf(texts, [](const ChainTexts& chains) { return chains.actorRotations.text(); }));
}

StoredSystems::StoredSystems(const RelativeCoordinateSystemDateManager& record)
    : m_ids(record.getIDList()), m_basicIDs(record.getBasicCoorSysIDList()), m_names(record.getNameList()),
      m_types(record.getTypeList()), m_offsets(record.getOffsetCoordinateList()),
      m_rotations(record.getRotateDirectionList()), m_actorRotations(record.getActorRoateDirList())
{
}

int StoredSystems::count() const
{
    return m_ids.size();
}

RelativeCoordinateSystem* StoredSystems::rebuild(int index) const
{
    auto system = std::make_unique<RelativeCoordinateSystem>();
    system->setID(m_ids.at(index));
    system->setBasicCoordinateSystemID(m_basicIDs.value(index));
    system->setName(m_names.value(index));
    rebuildTypes(*system, index);
    rebuildOffsets(*system, index);
    rebuildRotations(*system, index);
    rebuildActorRotations(*system, index);
    return system.release();
}

void StoredSystems::rebuildTypes(RelativeCoordinateSystem& system, int index) const
{
    const int basicID = system.getBasicCoordinateSystemID();
    const auto levels = GlobalHelper::convertStringToIntIntQList(m_types.value(index));
    setLevels(levels, basicID,
              [&](int ownerID, int type) { system.setType(CoordinateSystemType(type), ownerID, basicID, -1); });
}

void StoredSystems::rebuildOffsets(RelativeCoordinateSystem& system, int index) const
{
    const int basicID = system.getBasicCoordinateSystemID();
    setLevels(parseVectors(m_offsets.value(index)), basicID, [&](int ownerID, const QList<double>& values) {
        double offset[3] = {values.at(0), values.at(1), values.at(2)};
        system.setOffsetCoordinate(offset, ownerID, basicID, -1);
    });
}

void StoredSystems::rebuildRotations(RelativeCoordinateSystem& system, int index) const
{
    const int basicID = system.getBasicCoordinateSystemID();
    setLevels(parseVectors(m_rotations.value(index)), basicID, [&](int ownerID, const QList<double>& values) {
        double angles[3] = {values.at(0), values.at(1), values.at(2)};
        system.setRotateDirection(angles, ownerID, basicID, -1);
    });
}

void StoredSystems::rebuildActorRotations(RelativeCoordinateSystem& system, int index) const
{
    const int basicID = system.getBasicCoordinateSystemID();
    const auto levels = GlobalHelper::convertStringToIntQStringQList(m_actorRotations.value(index));
    setLevels(levels, basicID, [&](int ownerID, const QString& step) {
        system.setActorRotateDirection(GlobalHelper::convertStringToQStringDoublePair(step), ownerID, basicID, -1);
    });
}

} // namespace DataManager
