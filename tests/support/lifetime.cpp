// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "lifetime.h"
#include "zemtest.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMetaMethod>
#include <QTest>

namespace Lifetime {

namespace {

QPointer<QObject> victimOf(const Stage &stage)
{
    return stage.other ? stage.other : stage.object;
}

/** The slot that ends an object. */
class Ender : public QObject
{
    Q_OBJECT

public:
    Ender(const Stage &stage, End way) : page(stage.page), victim(victimOf(stage)), end(way) { }

    bool wasCalled = false;

public Q_SLOTS:
    void endObject()
    {
        if (wasCalled) {
            return;
        }
        wasCalled = true;
        if (end == End::DeleteLater) {
            victim->deleteLater();
        } else if (end == End::Delete) {
            delete victim;
        } else {
            delete page;
        }
    }

private:
    QPointer<QWidget> page;
    QPointer<QObject> victim;
    End end;
};

void deliverAllThatIsDue()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

} // namespace

const char *nameOf(End end)
{
    switch (end) {
    case End::Delete:
        return "delete";
    case End::DeleteLater:
        return "deleteLater";
    case End::DeletePage:
        return "delete page";
    }
    return "";
}

QWidget *shownPage()
{
    auto *page = new QWidget;
    page->resize(640, 480);
    page->show();
    if (!QTest::qWaitForWindowExposed(page, ZemTest::hangs)) {
        qWarning("the page is not on the screen");
    }
    return page;
}

QString endIn(Stage stage, const char *signal, End end)
{
    const QMetaObject *metaObject = stage.object->metaObject();
    const QPointer<QObject> victim = victimOf(stage);
    const int index = metaObject->indexOfSignal(QMetaObject::normalizedSignature(signal));
    if (index < 0) {
        return QStringLiteral("%1 has no signal %2")
            .arg(QLatin1String(metaObject->className()), QLatin1String(signal));
    }
    Ender ender(stage, end);
    const int slot = ender.metaObject()->indexOfSlot("endObject()");
    QObject::connect(stage.object, metaObject->method(index), &ender,
                     ender.metaObject()->method(slot), Qt::DirectConnection);
    stage.act();
    deliverAllThatIsDue();
    const bool livesOn = !victim.isNull();
    delete stage.object;
    delete stage.page;
    if (!ender.wasCalled) {
        return QStringLiteral("%1 was not emitted").arg(QLatin1String(signal));
    }
    return livesOn ? QStringLiteral("what should end lives on") : QString();
}

QStringList unheardSignals(const QMetaObject &metaObject, const QMetaObject &base,
                           const QSet<QByteArray> &heard)
{
    QStringList names;
    for (int i = base.methodCount(); i < metaObject.methodCount(); ++i) {
        const QMetaMethod method = metaObject.method(i);
        const QByteArray signature = method.methodSignature();
        if (method.methodType() == QMetaMethod::Signal && !signature.contains("QPrivateSignal")
            && !heard.contains(signature)) {
            names.append(QLatin1String(signature));
        }
    }
    return names;
}

} // namespace Lifetime

#include "lifetime.moc"
