// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <KeyboardFactoryDefault>
#include <QApplication>
#include <QLocale>
#include <QTimeZone>
#include <QTranslator>
#include <QVBoxLayout>
#include <ZEMButton>
#include <ZEMHistogramData>
#include <ZEMHistogramSeries>
#include <ZEMLineEditDialog>
#include <ZEMPageBackground>
#include <ZEMPageHeader>
#include <ZEMSmartDayHistogram>
#include <ZEMStyle>

namespace {

// kWh of the hours; yours come from a meter.
constexpr double yesterday[] = {0.2, 0.2, 0.1, 0.1, 0.2, 0.2, 0.5, 0.9, 0.6, 0.4, 0.4, 0.5,
                                0.8, 0.6, 0.4, 0.4, 0.6, 1.4, 1.9, 1.1, 0.8, 0.7, 0.5, 0.3};
constexpr double today[] = {0.2, 0.2, 0.1, 0.2, 0.2, 0.2, 0.4, 1.1, 0.7,
                            0.3, 0.3, 0.4, 1.0, 0.7, 0.3, 0.4, 0.7, 1.6};

ZEMPageHeader *makeHeader()
{
    auto *header = new ZEMPageHeader;
    header->setTitle(QStringLiteral("Kitchen"));
    header->setSubtitle(QStringLiteral("what it uses by the hour"));
    header->setNrOfPages(0);
    return header;
}

ZEMHistogramData *makeData()
{
    auto *data = new ZEMHistogramData;
    data->setWindowSize(24); // a window is a day of hours
    data->setNrWindows(2);
    data->setWindowValues(0, 0, 24, yesterday, false);
    data->setWindowValues(1, 0, 18, today, false);
    return data;
}

QWidget *makeChart()
{
    ZEMHistogramData *data = makeData();
    auto *used =
        new ZEMHistogramSeries(QStringLiteral("Used"), QBrush(QColor(232, 174, 34)), false);
    used->setData(data); // and owns it

    auto *chart = new ZEMSmartDayHistogram;
    chart->init();
    chart->setScalePeriod(24.0); // what is seen at once
    chart->setScaleInterval(data->interval()); // as far as a finger can drag it
    chart->setValueLimits(data->valueLimits().extend(0.0)); // bars stand on 0
    chart->addSeries(used); // and owns it
    chart->setDataChangedTimestamp(QDateTime(QDate(2026, 6, 21), QTime(0, 0), QTimeZone::utc()));
    return chart;
}

void speakEnglish()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(QLocale(), QStringLiteral("zemkit"), QStringLiteral("_"),
                         QStringLiteral(":/zemkit/translations"))) {
        QCoreApplication::installTranslator(translator);
    }
}

ZEMButton *makeButton(const QString &name, const QString &icon)
{
    auto *button = new ZEMButton;
    button->setObjectName(name);
    button->setIcon(QIcon(icon));
    return button;
}

/** A button in @p header that asks for a name for @p page. */
void addNameButton(ZEMPageHeader *header, KeyboardFactoryDefault *keyboards, QWidget *page)
{
    auto *dialog =
        new ZEMLineEditDialog(keyboards->createKeyboard(KeyboardFactoryDefault::PopupAbove), page);
    dialog->setBackgroundColor(Qt::black);
    dialog->setTitle(QStringLiteral("What is it called?"));
    dialog->hide();
    QObject::connect(dialog, &ZEMLineEditDialog::sigCancel, dialog, &QWidget::hide);
    QObject::connect(dialog, &ZEMLineEditDialog::sigSelect, dialog, [header, dialog] {
        header->setTitle(dialog->text());
        dialog->hide();
    });

    ZEMButton *button =
        makeButton(QStringLiteral("name"), QStringLiteral(":/zem/graphics/icons/icon_pencil.png"));
    QObject::connect(button, &ZEMButton::clicked, dialog, [header, dialog, page] {
        dialog->setText(header->getTitle());
        dialog->setGeometry(page->rect());
        dialog->show();
        dialog->raise();
    });
    header->addButton(button);
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QApplication::setStyle(new ZEMStyle(nullptr)); // light texts
    ZEMStyle::setApplicationFonts();
    speakEnglish();

    KeyboardFactoryDefault keyboards(QStringLiteral(KEYBOARDS), QStringLiteral("en"));
    ZEMPageBackground page;
    page.setBackgroundColor(QColor(22, 32, 40));
    page.resize(640, 480);
    auto *rows = new QVBoxLayout(&page);
    rows->setContentsMargins(0, 0, 0, 0);
    ZEMPageHeader *header = makeHeader();
    rows->addWidget(header);
    auto *middle = new QVBoxLayout;
    middle->setContentsMargins(16, 8, 16, 16);
    middle->addWidget(makeChart());
    rows->addLayout(middle, 1);
    addNameButton(header, &keyboards, &page);
    page.show();
    return QApplication::exec();
}
