// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "foundation/qt_ptr.h"

using kiv::foundation::QtPtr;
using kiv::foundation::UniqueQtPtr;

class tst_QtPtr : public QObject {
    Q_OBJECT

private slots:
    void everyCopyIsClearedOnItsOwn()
    {
        auto timer = std::make_unique<QTimer>();
        auto first = std::make_unique<QtPtr<QTimer>>(timer.get());
        const QtPtr<QTimer> copy(*first);
        const QtPtr<QTimer> moved(std::move(*first));
        const QtPtr<QObject> asBase(copy);
        first.reset();
        QVERIFY(copy == moved && copy.get() == timer.get() && &*asBase == timer.get());
        timer.reset();
        QVERIFY(!copy && !moved && !asBase && copy == QtPtr<QTimer>());
    }

    void assignmentForgetsTheOldObject()
    {
        UniqueQtPtr<QObject> first = std::make_unique<QObject>();
        UniqueQtPtr<QObject> second = std::make_unique<QObject>();
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

    void mayGoBeforeAndWhileItsObjectGoes()
    {
        auto object = std::make_unique<QObject>();
        std::unique_ptr<QtPtr<QObject>> pointer;
        connect(object.get(), &QObject::destroyed, this, [&] { pointer.reset(); });
        pointer = std::make_unique<QtPtr<QObject>>(object.get());
        std::make_unique<QtPtr<QObject>>(object.get()).reset();
        object.reset();
        QVERIFY(!pointer);
    }

    void copyOfADyingPointerIsNull()
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
        QVERIFY(wasNull && !copy);
    }
};

static const kiv::test::Suite<tst_QtPtr> suite;
#include "tst_qt_ptr.moc"
