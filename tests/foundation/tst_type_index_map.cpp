// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "foundation/type_index_map.h"

#include <sstream>

namespace {

struct Red {};
struct Blue {};

bool refusesCopies = false;

struct Key {
    explicit Key(QString text) : name(std::move(text)) {}
    Key(const Key &other) : name(other.name)
    {
        if (refusesCopies)
            throw std::bad_alloc();
    }
    QString name;
    friend bool operator==(const Key &, const Key &) = default;
    friend bool operator<(const Key &a, const Key &b) { return a.name < b.name; }
};

QString presentationText(const Key &key)
{
    return u"<%1>"_qs.arg(key.name);
}
std::ostream &operator<<(std::ostream &out, const Key &key)
{
    return out << qPrintable(key.name);
}

using Map = kiv::foundation::TypeIndexMap<Key, int>;

const Key a(u"a"_qs);
const Key b(u"b %2"_qs);

template <typename T>
QString name()
{
    return QString::fromUtf8(Map::plainName(typeid(T)));
}

template <typename Operation>
QString refusal(Operation operation)
{
    try {
        operation();
    } catch (const kiv::foundation::Error &error) {
        return error.message();
    }
    return {};
}

} // namespace

class tst_TypeIndexMap : public QObject {
    Q_OBJECT

private slots:
    void sizeIsTheSumOfTheParts()
    {
        Map map;
        map.insertOrAssign<Red>(a, 1);
        map.insertOrAssign<Blue>(a, 2);
        map.insertOrAssign<Red>(b, 3);
        map.insertOrAssign(typeid(Red), b, 4);
        map.value<Blue>(a) = 5;
        QCOMPARE(map.size(), std::size_t{3});
        QCOMPARE(std::as_const(map).value<Blue>(a), 5);
        QCOMPARE(map.value<Red>(b), 4);
        map.remove<Blue>(a);
        QVERIFY(!map.has<Blue>(a) && map.has<Red>(a) && map.size() == 2);
        QCOMPARE(map.maps().size(), std::size_t{1});
    }

    void refusalsNameTypeAndKey()
    {
        Map map;
        map.insertOrAssign<Red>(a, 1);
        const Map before = map;
        const QString red = name<Red>();
        const QString blue = name<Blue>();
        QCOMPARE(refusal([&] { (void)map.value<Red>(b); }),
                 u"Failed to find a mutable value under the type '"_qs + red +
                     u"' with the key '<b %2>'."_qs);
        QCOMPARE(refusal([&] { (void)before.value<Blue>(a); }),
                 u"Failed to find a non-mutable value under the type '"_qs + blue +
                     u"' with the key '<a>'."_qs);
        QCOMPARE(refusal([&] { map.remove<Blue>(a); }),
                 u"Failed to remove the value under the key '<a>' as the index type '"_qs + blue +
                     u"' was not found."_qs);
        QCOMPARE(
            refusal([&] { map.remove<Red>(b); }),
            u"Failed to remove the value under the key '<b %2>' as the key was not found under the index type '"_qs +
                red + u"'."_qs);
        QVERIFY(map == before && !map.has<Blue>(a));
    }

    void failedInsertionLeavesNoEmptyPart()
    {
        Map map;
        map.insertOrAssign<Red>(a, 1);
        const auto reset = qScopeGuard([] { refusesCopies = false; });
        refusesCopies = true;
        QVERIFY_THROWS_EXCEPTION(std::bad_alloc, map.insertOrAssign<Blue>(a, 1));
        QVERIFY_THROWS_EXCEPTION(std::bad_alloc, map.insertOrAssign<Red>(b, 2));
        QVERIFY(map.maps().size() == 1 && map.has<Red>(a) && map.size() == 1);
    }

    void equalityAndDumpFollowTypesKeysAndValues()
    {
        const auto make = [](std::initializer_list<std::tuple<std::type_index, Key, int>> entries) {
            Map map;
            for (const auto &[type, key, value] : entries)
                map.insertOrAssign(type, key, value);
            return map;
        };
        const Map map = make({{typeid(Red), b, 1}, {typeid(Red), a, 2}, {typeid(Blue), b, 3}});
        QVERIFY(map == make({{typeid(Blue), b, 3}, {typeid(Red), a, 2}, {typeid(Red), b, 1}}));
        QVERIFY(map != make({{typeid(Red), b, 1}, {typeid(Red), a, 2}}));
        QVERIFY(map != make({{typeid(Red), b, 1}, {typeid(Red), a, 2}, {typeid(Blue), b, 4}}));
        QVERIFY(map != make({{typeid(Red), b, 1}, {typeid(Red), a, 2}, {typeid(Blue), a, 3}}));

        const QString red = name<Red>() + u"[a=>2, b %2=>1]"_qs;
        const QString blue = name<Blue>() + u"[b %2=>3]"_qs;
        const bool isRedFirst = std::type_index(typeid(Red)) < std::type_index(typeid(Blue));
        std::ostringstream out;
        out << map << Map();
        QCOMPARE(QString::fromStdString(out.str()),
                 u"Type-Keys (%1, %2)Type-Keys ()"_qs.arg(isRedFirst ? red : blue,
                                                          isRedFirst ? blue : red));
    }
};

static const kiv::test::Suite<tst_TypeIndexMap> suite;
#include "tst_type_index_map.moc"
