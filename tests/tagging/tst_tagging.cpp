// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "tagging/budget_tag_manager.h"

#include "support/comparison.h"

using namespace kiv::tagging;
using namespace kiv::budgeting;
using enum kiv::budgeting::BudgetItemTypes;

namespace {

const Tag home(u"home"_qs);
const Tag Home(u"Home"_qs);
const Tag late(u"late"_qs);
const BudgetItemIdentifier rent{Bill, BudgetSource(u"Rent"_qs)};
const BudgetItemIdentifier flat{Bill, BudgetSource(u"Flat"_qs)};
const BudgetItemIdentifier food{Nontrack, BudgetSource(u"Food"_qs)};
const BudgetItemIdentifier saved{Goal, rent.source};

using M = BudgetTagManager &;

void tag(M manager, const BudgetItemIdentifier &item, const Tags &tags)
{
    manager.changeAssociation(BudgetItemTags::ItemTags(item, tags));
}

/// Rent is tagged home and Home, food is tagged home.
BudgetTagManager household()
{
    BudgetItemTags tags;
    tags.set(BudgetItemTags::ItemTags(rent, {home, Home}));
    tags.set(BudgetItemTags::ItemTags(food, {home}));
    return BudgetTagManager(tags);
}

/// A request, and all tags after it.
struct Row {
    const char *after;
    std::function<void(M)> request;
};

const char *const same =
    "(Rent (bill)=>(Home, home), Food (non-tracked)=>(home)), possible (Home, home)";
const std::initializer_list<Row> rows{
    // What was possible stays it.
    {"(Rent (bill)=>(late), Food (non-tracked)=>(home)), possible (Home, home, late)",
     [](M manager) { tag(manager, rent, {late}); }},
    {"(Food (non-tracked)=>(home)), possible (Home, home)",
     [](M manager) { tag(manager, rent, {}); }},
    {"(Rent (bill)=>(Home, home)), possible (Home, home)",
     [](M manager) { manager.removeAssociation(food); }},
    {same, [](M manager) { manager.removeAssociation(saved); }},
    {same, [](M manager) { manager.renameAssociation(saved, food.source); }},
    {same, [](M manager) { manager.renameAssociation(rent, rent.source); }},
    {"(Flat (bill)=>(Home, home), Food (non-tracked)=>(home)), possible (Home, home, late)",
     [](M manager) {
         tag(manager, flat, {late});
         manager.renameAssociation(rent, flat.source);
     }},
};

} // namespace

class tst_Tagging : public QObject {
    Q_OBJECT

private slots:
    void requestsAreDoneAndUndone()
    {
        QCOMPARE(comparisonFault(std::vector{Tag(), Home, home, late}), QString());
        for (const auto &[after, request] : rows) {
            BudgetTagManager manager = household();
            auto memory = manager.remember({rent, flat, food}, {late});
            request(manager);
            QCOMPARE(dump(manager), QString::fromLatin1(after));
            QCOMPARE(manager == household(), after == same);
            manager.restore(std::move(memory));
            QCOMPARE(manager, household());
        }
    }

    void associationsAreAskedForByKind()
    {
        const BudgetTagManager manager = household();
        QCOMPARE(dump(manager.associated(Bill)), u"(Rent (bill)=>(Home, home))"_qs);
        QVERIFY(manager.associated(Goal).isEmpty());
        QVERIFY(manager.hasAssociation(rent) && !manager.hasAssociation(saved));
        QVERIFY(manager.associations().tags(saved).isEmpty());
        QCOMPARE(manager.associations().tags(food), Tags{home});
        const auto unknown = static_cast<kiv::budgeting::BudgetItemTypes>(6);
        QVERIFY_THROWS_EXCEPTION(std::logic_error, static_cast<void>(manager.associated(unknown)));
        BudgetTagManager changed = manager;
        QVERIFY_THROWS_EXCEPTION(std::logic_error, tag(changed, {unknown, rent.source}, {late}));
    }

    void removedTagsAreGoneEverywhere()
    {
        BudgetTagManager manager = household();
        manager.remove({home, late});
        QCOMPARE(dump(manager), u"(Rent (bill)=>(Home)), possible (Home)"_qs);
    }
};

static const kiv::test::Suite<tst_Tagging> taggingSuite;
#include "tst_tagging.moc"
