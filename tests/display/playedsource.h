// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PLAYEDSOURCE_H
#define PLAYEDSOURCE_H

#include "energysource.h"

#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>
#include <QTimer>
#include <ZEMVirtualKey>

#include "displaysettings.h"
#include "displaywindow.h"
#include "zemtest.h"

/** A source that a test plays. */
class PlayedSource : public EnergySource
{
public:
    PlayedSource() { readings.timeZone = QTimeZone("Europe/Amsterdam"); }

    const Readings::Household &household() const override { return readings; }
    std::optional<PowerReport> power() const override { return report; }
    double mostProduction() const override { return 4000.0; }
    QDateTime now() const override { return time; }
    bool isMetering() const override { return metering; }
    bool isSimulated() const override { return simulated; }
    bool isLive() const override { return live; }

    /** Counters that are read each hour of so many days from 7 March 2016 on. */
    void count(Readings::Quantity quantity, int days, double perHour = 0.5,
               Readings::Tariff tariff = Readings::Tariff::Single)
    {
        Readings::Meter &meter = readings.meter({quantity, tariff}, Readings::Meter::Kind::Counter);
        const qint64 midnight =
            QDateTime(QDate(2016, 3, 7), QTime(0, 0), readings.timeZone).toSecsSinceEpoch();
        for (int hour = 0; hour <= 24 * days; ++hour) {
            meter.addReading(midnight + hour * 3600, 100.0 + perHour * hour);
        }
    }

    Readings::Household readings;
    std::optional<PowerReport> report;
    bool metering = true;
    bool simulated = false;
    bool live = true;
    QDateTime time {QDate(2016, 3, 9), QTime(14, 5), QTimeZone("Europe/Amsterdam")};
};

/** A display with settings and keyboards of its own, shown, and the finger that taps on it. */
class PlayedDisplay
{
public:
    explicit PlayedDisplay(const EnergySource &source)
        : settings(directory.filePath(QStringLiteral("display.ini"))),
          window(source, &settings, QStringLiteral(KEYBOARD_DIR))
    {
    }

    bool show()
    {
        window.show();
        return QTest::qWaitForWindowExposed(&window, ZemTest::hangs);
    }

    QString page() const { return window.currentWidget()->objectName(); }

    /** The widget of that name and type on the page in view; null if there is none. */
    template <class Widget = QWidget>
    Widget *onPage(const char *name) const
    {
        return window.currentWidget()->findChild<Widget *>(QLatin1String(name));
    }

    /** What lies over the page in view, newest last. */
    template <class Overlay>
    Overlay *overlay() const
    {
        const auto found =
            window.template findChildren<Overlay *>(QString(), Qt::FindDirectChildrenOnly);
        for (auto each = found.crbegin(); each != found.crend(); ++each) {
            if ((*each)->isVisible()) {
                return *each;
            }
        }
        return nullptr;
    }

    /** The dialog of that type, ready for typing: it selects its text once more when it is shown.
     */
    template <class Dialog>
    Dialog *inputDialog() const
    {
        constexpr int secondSelection = 500; // ms
        ZemTest::outlast(secondSelection);
        return overlay<Dialog>();
    }

    /** Calls @p answer with the overlay of that type as soon as there is one. */
    template <class Overlay, class Answer>
    void whenOpen(Answer answer)
    {
        auto *timer = new QTimer(&window);
        QObject::connect(timer, &QTimer::timeout, timer, [this, timer, answer] {
            if (auto *shown = overlay<Overlay>()) {
                timer->deleteLater();
                timer->stop();
                answer(shown);
            }
        });
        timer->start(1);
    }

    static void tap(QWidget *widget)
    {
        ZemTest::press(widget, widget->rect().center());
        ZemTest::release(widget, widget->rect().center());
    }

    /** Taps on the key of the on-screen keyboard of @p dialog that has this name or character. */
    static void tapKey(const QWidget *dialog, const QString &name)
    {
        for (ZEMVirtualKey *key : dialog->findChildren<ZEMVirtualKey *>()) {
            if (key->isVisible() && key->name().compare(name, Qt::CaseInsensitive) == 0) {
                tap(key);
                QCoreApplication::sendPostedEvents();
                return;
            }
        }
        QFAIL(qPrintable(QStringLiteral("no key ") + name));
    }

    QTemporaryDir directory;
    DisplaySettings settings;
    DisplayWindow window;
};

#endif
