// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "tagging/budget_tag_manager.h"

#include "support/comparison.h"

using namespace kiv::tagging;
using kiv::budgeting::BudgetItemIdentifier;
using kiv::budgeting::BudgetItemTypes;
using kiv::budgeting::BudgetSource;
using kiv::test::dump;

namespace {

const Tag home(u"home"_qs);
const Tag Home(u"Home"_qs);
const Tag late(u"late"_qs);
const BudgetItemIdentifier rent{BudgetItemTypes::Bill, BudgetSource(u"Rent"_qs)};
const BudgetItemIdentifier food{BudgetItemTypes::Nontrack, BudgetSource(u"Food"_qs)};

/// Rent is tagged home and Home, food is tagged home.
BudgetTagManager household()
{
    BudgetItemTags tags;
    tags.set(BudgetItemTags::ItemTags(rent, {home, Home}));
    tags.set(BudgetItemTags::ItemTags(food, {home}));
    return BudgetTagManager(tags);
}

} // namespace

class tst_Tagging : public QObject {
    Q_OBJECT

private slots:
    void possibleAreTheTagsInUseInTheirOrder()
    {
        QCOMPARE(dump(household()), u"(Rent (bill)=>(Home, home), Food (non-tracked)=>(home)), "
                                    "possible (Home, home)"_qs);
        QCOMPARE(kiv::test::comparisonFault(std::vector{Tag(), Home, home, late}), QString());
    }

    void associationsAreAskedForByKind()
    {
        const BudgetTagManager manager = household();
        QCOMPARE(dump(manager.associated(BudgetItemTypes::Bill)),
                 u"(Rent (bill)=>(Home, home))"_qs);
        QVERIFY(manager.associated(BudgetItemTypes::Goal).isEmpty());
        QVERIFY_THROWS_EXCEPTION(std::logic_error, static_cast<void>(manager.associated(
                                                       static_cast<BudgetItemTypes>(6))));
        const BudgetItemIdentifier unknown{static_cast<BudgetItemTypes>(6), rent.source};
        QVERIFY_THROWS_EXCEPTION(std::logic_error, household().changeAssociation(
                                                       BudgetItemTags::ItemTags(unknown, {late})));
        QVERIFY(!manager.hasAssociation({BudgetItemTypes::Goal, rent.source}));
        QVERIFY(manager.associations().tags({BudgetItemTypes::Goal, rent.source}).isEmpty());
    }

    void changedTagsReplaceTheOldAndStayPossible()
    {
        BudgetTagManager manager = household();
        manager.changeAssociation(BudgetItemTags::ItemTags(rent, {late}));
        QCOMPARE(manager.associations().tags(rent), Tags{late});
        QCOMPARE(manager.possible(), (Tags{Home, home, late}));
        manager.changeAssociation(BudgetItemTags::ItemTags(rent));
        QVERIFY(!manager.hasAssociation(rent));
        manager.removeAssociation(food);
        manager.removeAssociation(food);
        QVERIFY(manager.associations().isEmpty());
        QCOMPARE(manager.possible(), (Tags{Home, home, late}));
        QVERIFY(manager != BudgetTagManager());
    }

    void tagsFollowARenamedItem()
    {
        BudgetTagManager manager = household();
        const BudgetTagManager before = manager;
        manager.renameAssociation({BudgetItemTypes::Goal, rent.source}, food.source);
        manager.renameAssociation(rent, rent.source);
        QCOMPARE(manager, before);
        const BudgetItemIdentifier flat{BudgetItemTypes::Bill, BudgetSource(u"Flat"_qs)};
        manager.changeAssociation(BudgetItemTags::ItemTags(flat, {late}));
        manager.renameAssociation(rent, flat.source);
        QCOMPARE(manager.associations().tags(flat), (Tags{Home, home}));
        QVERIFY(!manager.hasAssociation(rent));
    }

    void whatWasDoneToAnItemIsUndone()
    {
        const BudgetItemIdentifier flat{BudgetItemTypes::Bill, BudgetSource(u"Flat"_qs)};
        const BudgetTagManager before = household();
        const auto undone = [&](std::vector<BudgetItemIdentifier> items, const Tags &coming,
                                const auto &change) {
            BudgetTagManager manager = before;
            auto memory = manager.remember(std::move(items), coming);
            change(manager);
            const bool isChanged = manager != before;
            manager.restore(std::move(memory));
            return isChanged && manager == before;
        };
        QVERIFY(undone({rent}, {late, home}, [](BudgetTagManager &manager) {
            manager.changeAssociation(BudgetItemTags::ItemTags(rent, {late, home}));
        }));
        QVERIFY(undone({flat}, {late}, [&](BudgetTagManager &manager) {
            manager.changeAssociation(BudgetItemTags::ItemTags(flat, {late}));
        }));
        QVERIFY(undone({rent, flat}, {}, [&](BudgetTagManager &manager) {
            manager.renameAssociation(rent, flat.source);
        }));
        QVERIFY(
            undone({food}, {}, [](BudgetTagManager &manager) { manager.removeAssociation(food); }));
    }

    void removedTagsAreGoneEverywhere()
    {
        BudgetTagManager manager = household();
        manager.remove({home, late});
        QCOMPARE(manager.possible(), Tags{Home});
        QCOMPARE(manager.associations().tags(rent), Tags{Home});
        QVERIFY(!manager.hasAssociation(food));
    }
};

static const kiv::test::Suite<tst_Tagging> suite;
#include "tst_tagging.moc"
