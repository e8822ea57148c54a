// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/type_index_map.h"

#include <QtTest/QtTest>

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
    return out << key.name.toStdString();
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
    void sizeIsTheSumOfTheParts();
    void refusalsNameTypeAndKey();
    void failedInsertionLeavesNoEmptyPart();
    void equalityComparesTypesKeysAndValues();
    void dumpNamesEachType();
};

void tst_TypeIndexMap::sizeIsTheSumOfTheParts()
{
    Map map;
    map.insertOrAssign<Red>(a, 1);
    map.insertOrAssign<Blue>(a, 2);
    map.insertOrAssign<Red>(b, 3);
    map.insertOrAssign(typeid(Red), b, 4);
    QCOMPARE(map.size(), std::size_t{3});
    map.value<Blue>(a) = 5;
    QCOMPARE(std::as_const(map).value<Blue>(a), 5);
    QCOMPARE(map.value<Red>(b), 4);
    map.remove<Blue>(a);
    QVERIFY(!map.has<Blue>(a) && map.has<Red>(a));
    QCOMPARE(map.maps().size(), std::size_t{1});
    QCOMPARE(map.size(), std::size_t{2});
    map.clear();
    QVERIFY(map.isEmpty() && map.size() == 0 && map == Map());
}

void tst_TypeIndexMap::refusalsNameTypeAndKey()
{
    Map map;
    map.insertOrAssign<Red>(a, 1);
    const Map before = map;
    const QString mutableOne =
        u"Failed to find a mutable value under the type '%1' with the key '%2'."_qs;
    QCOMPARE(refusal([&] { (void)map.value<Red>(b); }), mutableOne.arg(name<Red>(), u"<b %2>"_qs));
    QCOMPARE(refusal([&] { (void)map.value<Blue>(a); }), mutableOne.arg(name<Blue>(), u"<a>"_qs));
    QCOMPARE(refusal([&] { (void)before.value<Red>(b); }),
             u"Failed to find a non-mutable value under the type '%1' with the key '%2'."_qs.arg(
                 name<Red>(), u"<b %2>"_qs));
    QCOMPARE(
        refusal([&] { map.remove<Blue>(a); }),
        u"Failed to remove the value under the key '%1' as the index type '%2' was not found."_qs
            .arg(u"<a>"_qs, name<Blue>()));
    QCOMPARE(
        refusal([&] { map.remove<Red>(b); }),
        u"Failed to remove the value under the key '%1' as the key was not found under the index type '%2'."_qs
            .arg(u"<b %2>"_qs, name<Red>()));
    QVERIFY(map == before);
}

void tst_TypeIndexMap::failedInsertionLeavesNoEmptyPart()
{
    Map map;
    refusesCopies = true;
    const auto reset = qScopeGuard([] { refusesCopies = false; });
    QVERIFY_EXCEPTION_THROWN(map.insertOrAssign<Red>(a, 1), std::bad_alloc);
    QVERIFY(map.isEmpty());
    refusesCopies = false;
    map.insertOrAssign<Red>(a, 1);
    refusesCopies = true;
    QVERIFY_EXCEPTION_THROWN(map.insertOrAssign<Red>(b, 2), std::bad_alloc);
    QVERIFY(map.has<Red>(a) && map.size() == 1);
}

void tst_TypeIndexMap::equalityComparesTypesKeysAndValues()
{
    const auto make = [](std::initializer_list<std::tuple<std::type_index, Key, int>> entries) {
        Map map;
        for (const auto &[type, key, value] : entries)
            map.insertOrAssign(type, key, value);
        return map;
    };
    const Map map = make({{typeid(Red), a, 1}, {typeid(Blue), b, 2}});
    QVERIFY(map == make({{typeid(Blue), b, 2}, {typeid(Red), a, 1}}));
    QVERIFY(map != make({{typeid(Red), a, 1}}));
    QVERIFY(map != make({{typeid(Red), a, 2}, {typeid(Blue), b, 2}}));
    QVERIFY(map != make({{typeid(Red), b, 1}, {typeid(Blue), b, 2}}));
    QVERIFY(map != make({{typeid(Red), a, 1}, {typeid(Red), b, 2}}));
}

void tst_TypeIndexMap::dumpNamesEachType()
{
    Map map;
    std::ostringstream empty;
    empty << map;
    QCOMPARE(empty.str(), std::string("Type-Keys ()"));
    map.insertOrAssign<Red>(b, 2);
    map.insertOrAssign<Red>(a, 1);
    map.insertOrAssign<Blue>(a, 3);
    const QString red = name<Red>() + u"[a=>1, b %2=>2]"_qs;
    const QString blue = name<Blue>() + u"[a=>3]"_qs;
    const bool isRedFirst = std::type_index(typeid(Red)) < std::type_index(typeid(Blue));
    std::ostringstream out;
    out << map;
    QCOMPARE(QString::fromStdString(out.str()), u"Type-Keys ("_qs + (isRedFirst ? red : blue) +
                                                    u", "_qs + (isRedFirst ? blue : red) + u')');
}

QTEST_APPLESS_MAIN(tst_TypeIndexMap)
#include "tst_type_index_map.moc"
