// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/qt_ptr.h"

#include <QtCore/QTimer>
#include <QtTest/QtTest>

#include <memory>

using kiv::foundation::QtPtr;
using kiv::foundation::UniqueQtPtr;

class tst_QtPtr : public QObject {
    Q_OBJECT

private slots:
    void isClearedWithItsObject();
    void everyCopyGuardsOnItsOwn();
    void assignmentForgetsTheOldObject();
    void mayGoBeforeItsObject();
    void mayGoWhileItsObjectGoes();
    void copyOfADyingPointerIsNull();
};

void tst_QtPtr::isClearedWithItsObject()
{
    UniqueQtPtr<QTimer> timer = std::make_unique<QTimer>();
    const QtPtr<QTimer> pointer(timer.get());
    const QtPtr<QObject> asBase(pointer);
    QCOMPARE(pointer.get(), timer.get());
    QVERIFY(asBase && &*asBase == timer.get());
    timer.reset();
    QVERIFY(!pointer && !asBase && pointer == QtPtr<QTimer>());
}

void tst_QtPtr::everyCopyGuardsOnItsOwn()
{
    auto object = std::make_unique<QObject>();
    auto first = std::make_unique<QtPtr<QObject>>(object.get());
    const QtPtr<QObject> copy(*first);
    const QtPtr<QObject> moved(std::move(*first));
    first.reset();
    QVERIFY(copy && moved && copy == moved);
    object.reset();
    QVERIFY(!copy && !moved);
}

void tst_QtPtr::assignmentForgetsTheOldObject()
{
    auto first = std::make_unique<QObject>();
    auto second = std::make_unique<QObject>();
    QtPtr<QObject> pointer(first.get());
    const QtPtr<QObject> &same = pointer;
    pointer = same;
    QCOMPARE(pointer.get(), first.get());
    pointer = QtPtr<QObject>(second.get());
    first.reset();
    QCOMPARE(pointer.get(), second.get());
    second.reset();
    QVERIFY(!pointer);
}

void tst_QtPtr::mayGoBeforeItsObject()
{
    auto object = std::make_unique<QObject>();
    auto pointer = std::make_unique<QtPtr<QObject>>(object.get());
    pointer.reset();
    bool isDestroyed = false;
    connect(object.get(), &QObject::destroyed, this, [&] { isDestroyed = true; });
    object.reset();
    QVERIFY(isDestroyed);
}

void tst_QtPtr::mayGoWhileItsObjectGoes()
{
    auto object = std::make_unique<QObject>();
    std::unique_ptr<QtPtr<QObject>> pointer;
    connect(object.get(), &QObject::destroyed, this, [&] { pointer.reset(); });
    pointer = std::make_unique<QtPtr<QObject>>(object.get());
    object.reset();
    QVERIFY(!pointer);
}

void tst_QtPtr::copyOfADyingPointerIsNull()
{
    auto object = std::make_unique<QObject>();
    QtPtr<QObject> pointer;
    QtPtr<QObject> copy;
    bool wasNull = false;
    connect(object.get(), &QObject::destroyed, this, [&] {
        wasNull = !pointer;
        copy = pointer;
    });
    pointer = QtPtr<QObject>(object.get());
    object.reset();
    QVERIFY(wasNull);
    QVERIFY(!copy);
}

QTEST_APPLESS_MAIN(tst_QtPtr)
#include "tst_qt_ptr.moc"
