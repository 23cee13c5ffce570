// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "classpage.h"

#include "look.h"
#include "pagetable.h"
#include "propertypanel.h"
#include "propertyrow.h"
#include "stage.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <ZEMButton>
#include <ZEMPageHeader>
#include <ZEMTextLabel>

namespace {

constexpr int refreshTime = 250; // milliseconds
constexpr int margin = 8; // pixels
constexpr int textSize = 11; // points

} // namespace

ClassPage::ClassPage(const GalleryPage &page, std::unique_ptr<Stage> newStage, QWidget *screen,
                     QWidget *parent)
    : ZEMPageBackground(parent), ownStage(std::move(newStage)), panel(new PropertyPanel(*ownStage))
{
    setBackgroundColor(Look::ground());
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, margin);
    rows->setSpacing(0);
    rows->addWidget(makeHeader(page));
    auto *columns = new QHBoxLayout;
    columns->setContentsMargins(0, 0, margin, 0);
    columns->setSpacing(margin);
    columns->addWidget(makePlace(screen));
    columns->addWidget(panel, 1);
    rows->addLayout(columns, 1);

    connect(panel, &PropertyPanel::changed, this, &ClassPage::refresh);
    connect(panel, &PropertyPanel::textWanted, this, &ClassPage::textWanted);
    connect(&refreshTimer, &QTimer::timeout, this, &ClassPage::refresh);
    refreshTimer.start(refreshTime);
    refresh();
}

ClassPage::~ClassPage() = default;

const Stage &ClassPage::stage() const
{
    return *ownStage;
}

QWidget *ClassPage::makeHeader(const GalleryPage &page)
{
    auto *header = new ZEMPageHeader;
    header->setTitle(page.classes.constFirst());
    header->setSubtitle(page.summary);
    header->setNrOfPages(0);
    const QString arrow = QStringLiteral(":/tango/graphics/tango/actions/go-%1-icon.png");
    ZEMButton *back = Look::makeHeaderButton(QStringLiteral("btnBack"), QString(), tr("index"));
    ZEMButton *source = Look::makeHeaderButton(QStringLiteral("btnSource"), QString(), tr("code"));
    ZEMButton *previous = Look::makeHeaderButton(QStringLiteral("btnPreviousClass"),
                                                 arrow.arg(QStringLiteral("up")), QString());
    ZEMButton *next = Look::makeHeaderButton(QStringLiteral("btnNextClass"),
                                             arrow.arg(QStringLiteral("down")), QString());
    Look::setBackButton(header, back);
    for (ZEMButton *button : {source, previous, next}) {
        header->addButton(button);
    }
    connect(back, &ZEMButton::clicked, this, &ClassPage::backClicked);
    connect(source, &ZEMButton::clicked, this, &ClassPage::sourceClicked);
    connect(previous, &ZEMButton::clicked, this, &ClassPage::previousClicked);
    connect(next, &ZEMButton::clicked, this, &ClassPage::nextClicked);
    return header;
}

QWidget *ClassPage::makePlace(QWidget *screen)
{
    auto *place = new QWidget;
    place->setFixedSize(Stage::width, Stage::height);
    QWidget *sample = ownStage->sample();
    if (!ownStage->coversScreen()) {
        sample->setParent(place);
        sample->setGeometry(0, 0, Stage::width,
                            qMax(ownStage->pictureSize().height(), sample->minimumHeight()));
        return place;
    }
    sample->setParent(screen);
    sample->setGeometry(screen->rect());
    sample->show();
    thumbnail = new ZEMButton(place);
    thumbnail->setObjectName(QStringLiteral("thumbnail"));
    connect(thumbnail, &ZEMButton::clicked, this, &ClassPage::fullSizeClicked);
    ZEMTextLabel *hint = Look::makeLabel(tr("touch it for its full size"), textSize);
    hint->setParent(place);
    hint->move(margin, Stage::width * 3 / 4 + margin);
    return place;
}

void ClassPage::refresh()
{
    panel->refresh();
    QWidget *sample = ownStage->sample();
    if (thumbnail && sample) {
        const QSize size(Stage::width, Stage::width * 3 / 4);
        const QPixmap whole = sample->grab();
        thumbnail->setBackground(whole.scaled(size * whole.devicePixelRatio(),
                                              Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
}
