// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/coordinates/CoordinateTree.h>

#include <QPair>
#include <QtTest>

using Workbench::CoordinateTree;
using Systems = QVector<QPair<int, int>>;

Q_DECLARE_METATYPE(Systems)

namespace {

/// "0:top 3:0 5:3", each with the identifier of its parent in the tree; "!" for a missing basic system, "o" for a loop.
QString text(const CoordinateTree& tree)
{
    QStringList texts;
    for (const CoordinateTree::Node& node : tree.nodes) {
        const QString parent = node.parent < 0 ? QStringLiteral("top") : QString::number(tree.nodes.at(node.parent).id);
        static const QStringList marks = {QString(), QStringLiteral("!"), QStringLiteral("o")};
        texts.append(QStringLiteral("%1:%2%3").arg(node.id).arg(parent, marks.at(node.fault)));
    }
    return texts.join(QLatin1Char(' '));
}

} // namespace

/// How systems hang together, also when a file says nonsense of them.
class tst_CoordinateTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data();
    void finds();
    void goesDownwards();
    void standsDeepChainsAndLongLoops();
};

void tst_CoordinateTree::finds_data()
{
    QTest::addColumn<Systems>("systems");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const Systems& systems, const char* expected) {
        QTest::newRow(name) << systems << QString::fromLatin1(expected);
    };
    row("nothing", {}, "");
    row("global", {{0, 0}}, "0:top");
    row("tree", {{0, 0}, {3, 0}, {5, 3}, {6, 3}, {7, 0}}, "0:top 3:0 5:3 6:3 7:0");
    row("basic system behind", {{0, 0}, {5, 3}, {3, 0}}, "0:top 5:3 3:0");
    row("orphan", {{0, 0}, {5, 9}, {6, 5}}, "0:top 5:top! 6:5");
    row("no global system", {{3, 0}}, "3:top!");
    row("loop of one", {{0, 0}, {4, 4}}, "0:top 4:topo");
    row("loop of two", {{0, 0}, {4, 5}, {5, 4}}, "0:top 4:5 5:topo");
    row("loop with a tail", {{0, 0}, {7, 5}, {4, 5}, {5, 4}}, "0:top 7:5 4:topo 5:4");
    row("doubled identifier", {{0, 0}, {3, 0}, {3, 5}, {5, 3}}, "0:top 3:0 3:5 5:3");
    row("doubled global system", {{0, 0}, {0, 4}, {4, 0}}, "0:top 0:top 4:0");
    row("negative identifiers", {{0, 0}, {-1, 0}, {-2, -1}}, "0:top -1:0 -2:-1");
}

void tst_CoordinateTree::finds()
{
    QFETCH(Systems, systems);
    QTEST(text(Workbench::makeCoordinateTree(systems)), "expected");
}

void tst_CoordinateTree::goesDownwards()
{
    const CoordinateTree tree = Workbench::makeCoordinateTree({{0, 0}, {5, 3}, {3, 0}, {6, 5}, {7, 0}});
    QCOMPARE(tree.downwards(), QVector<int>({0, 2, 4, 1, 3}));
    QCOMPARE(tree.below(3), QVector<int>({5, 6}));
    QCOMPARE(tree.below(0), QVector<int>({3, 7, 5, 6}));
    QCOMPARE(tree.below(6), QVector<int>());
    QCOMPARE(tree.below(99), QVector<int>());
    const CoordinateTree loop = Workbench::makeCoordinateTree({{0, 0}, {4, 5}, {5, 4}});
    QCOMPARE(loop.downwards(), QVector<int>({0, 2, 1}));
    QCOMPARE(loop.below(5), QVector<int>({4}));
}

void tst_CoordinateTree::standsDeepChainsAndLongLoops()
{
    constexpr int count = 100000;
    Systems chain = {{0, 0}};
    Systems loop = {{0, 0}};
    for (int id = 1; id <= count; ++id) {
        chain.append({id, id - 1});
        loop.append({id, id == 1 ? count : id - 1});
    }
    const CoordinateTree deep = Workbench::makeCoordinateTree(chain);
    QCOMPARE(deep.below(1).size(), count - 1);
    const CoordinateTree cut = Workbench::makeCoordinateTree(loop);
    QCOMPARE(cut.downwards().size(), count + 1);
    QCOMPARE(std::count_if(cut.nodes.begin(), cut.nodes.end(),
                           [](const CoordinateTree::Node& node) { return node.fault == CoordinateTree::Loop; }),
             1);
}

QTEST_APPLESS_MAIN(tst_CoordinateTree)
#include "tst_coordinatetree.moc"
