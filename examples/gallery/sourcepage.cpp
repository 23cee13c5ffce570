// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "sourcepage.h"

#include "look.h"
#include "pagetable.h"
#include "sourcelines.h"

#include <QFile>
#include <QFontMetrics>
#include <QVBoxLayout>
#include <ZEMButton>
#include <ZEMPageHeader>
#include <ZEMTextLabel>

/** The sources are in a static library, from which only what is asked for is linked. */
static void initSources()
{
    Q_INIT_RESOURCE(gallerysources);
}

namespace {

constexpr int fontSize = 11; // pixels
constexpr int marginAtSide = 10; // pixels
constexpr int roomOfText = 396; // pixels of height

QFont sourceFont()
{
    QFont font(QStringLiteral("DejaVu Sans Mono"));
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    font.setPixelSize(fontSize);
    return font;
}

QStringList partsOf(const GalleryPage &page)
{
    initSources();
    QFile file(sourceOf(page));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QFontMetrics metrics(sourceFont());
    const int room = Look::screen.width() - 2 * marginAtSide;
    return pagesOfSource(QString::fromUtf8(file.readAll()),
                         room / metrics.horizontalAdvance(QLatin1Char('m')),
                         roomOfText / metrics.lineSpacing());
}

} // namespace

SourcePage::SourcePage(const GalleryPage &page, QWidget *parent)
    : ZEMPageBackground(parent), parts(partsOf(page)), header(new ZEMPageHeader),
      text(Look::makeLabel(QString(), fontSize)),
      btnPrevious(Look::makeHeaderButton(
          QStringLiteral("btnPrevious"),
          QStringLiteral(":/tango/graphics/tango/actions/go-up-icon.png"), QString())),
      btnNext(Look::makeHeaderButton(
          QStringLiteral("btnNext"),
          QStringLiteral(":/tango/graphics/tango/actions/go-down-icon.png"), QString()))
{
    setBackgroundColor(Look::ground());
    header->setTitle(page.classes.constFirst());
    header->setNrOfPages(0);
    ZEMButton *back = Look::makeHeaderButton(QStringLiteral("btnBack"), QString(), tr("back"));
    Look::setBackButton(header, back);
    header->addButton(btnPrevious);
    header->addButton(btnNext);
    text->setObjectName(QStringLiteral("source"));
    text->setFont(sourceFont());
    text->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(header);
    text->setContentsMargins(marginAtSide, 0, marginAtSide, 0);
    rows->addWidget(text, 1);

    connect(back, &ZEMButton::clicked, this, &SourcePage::backClicked);
    connect(btnPrevious, &ZEMButton::clicked, this, [this] { showPart(current - 1); });
    connect(btnNext, &ZEMButton::clicked, this, [this] { showPart(current + 1); });
    showPart(0);
}

SourcePage::~SourcePage() = default;

void SourcePage::showPart(int part)
{
    current = part;
    text->setText(parts.value(part));
    header->setSubtitle(tr("its page in the gallery, %1 of %2").arg(part + 1).arg(parts.size()));
    btnPrevious->setEnabled(part > 0);
    btnNext->setEnabled(part + 1 < parts.size());
}
