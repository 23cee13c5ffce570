// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SOURCEPAGE_H
#define SOURCEPAGE_H

#include <QStringList>
#include <ZEMPageBackground>

struct GalleryPage;
class ZEMButton;
class ZEMPageHeader;
class ZEMTextLabel;

/** The source of a page of the gallery, to be read page by page. */
class SourcePage : public ZEMPageBackground
{
    Q_OBJECT

public:
    explicit SourcePage(const GalleryPage &page, QWidget *parent = nullptr);
    ~SourcePage() override;

Q_SIGNALS:
    void backClicked();

private:
    void showPart(int part);

    QStringList parts;
    int current = 0;
    ZEMPageHeader *header;
    ZEMTextLabel *text;
    ZEMButton *btnPrevious;
    ZEMButton *btnNext;
};

#endif
