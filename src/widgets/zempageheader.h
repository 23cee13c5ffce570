// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMPAGEHEADER_H
#define ZEMPAGEHEADER_H

#include "zempagebackground.h"
#include "zempageheaderinterface.h"

#include <QString>

#include <memory>

class QLabel;

/**
 * The strip at the top of a page: up to two actions at the left, then the title with a row of page
 * dots and a line under it, and at the right up to five application buttons.
 *
 * @code
 * #include <QDateTime>
 * #include <QLocale>
 * #include <ZEMNotificationButton>
 * #include <ZEMPageHeader>
 *
 * ZEMPageHeader header;
 * header.setTitle(QStringLiteral("instellingen"));
 * header.setSubtitle(QLocale().toString(QDateTime::currentDateTime(), QLocale::LongFormat));
 * header.setNrOfPages(3);
 * auto *mail = new ZEMNotificationButton;
 * mail->setIcon(QPixmap(QStringLiteral(":/zem/graphics/icons/icon_pencil.png")));
 * header.addButton(mail);
 * header.show();
 * @endcode
 * A new header is 640 by 74 pixels, and in a layout as wide as there is room; it has two dots, one
 * empty action tile, no application buttons and sample texts, which the host replaces. The texts
 * are in "Quicksand Book", a font of the host's; see ZEMStyle::setApplicationFonts().
 */
class ZEM_EXPORT ZEMPageHeader : public ZEMPageBackground, public ZEMPageHeaderInterface
{
    Q_OBJECT
    Q_PROPERTY(QString title READ getTitle WRITE setTitle)
    Q_PROPERTY(QString subTitle READ getSubTitle WRITE setSubtitle)
    Q_PROPERTY(int pages READ getNrOfPages WRITE setNrOfPages)
    Q_PROPERTY(int buttons READ getNrOfButtons WRITE setNrOfButtons)

public:
    explicit ZEMPageHeader(QWidget *parent = nullptr);
    ~ZEMPageHeader() override;

    /**
     * Adds @p widget to the first action tile and takes ownership. A second widget stands under the
     * first; a header that changes its action changes the page of the stacked widget.
     */
    void setActionButton(QStackedWidget *widget) override;
    /** Enables or disables the first action tile and what it holds; enabled by default. */
    void enableActionButton(bool enable) override;

    /**
     * Adds @p widget to the second action tile, takes ownership, and shows the tile, which is
     * hidden until then.
     */
    void setActionButton2(QWidget *widget) override;
    /** Enables or disables the second action tile and what it holds; enabled by default. */
    void enableActionButton2(bool enable) override;

    /**
     * Appends an application button: a tile that holds @p widget, which the header then owns, or an
     * empty tile for null. There is room for five; the call for a sixth gives a warning and does
     * nothing else, and its widget stays with the caller.
     */
    void addButton(QWidget *widget) override;
    /** Does nothing: to remove the application buttons, call setNrOfButtons() with 0. */
    void removeAllButtons() override;

    /** Marks the dot of @p page, counted from 0. A page without a dot is ignored. */
    void setCurrentPage(int page) override;

    /** The number of page dots: 0 or 2 to 9; 2 in a new header. */
    int getNrOfPages() const;
    /** Shows @p count dots, 2 to 9; none for 0 and 1. Any other count is ignored. */
    void setNrOfPages(int count) override;

    QString getTitle() const;
    QString getSubTitle() const;

    /** Shows or hides the row of page dots; shown by default. */
    void showPageIndicator(bool show);

    /** The number of application buttons, 0 to 5. */
    int getNrOfButtons() const;
    /**
     * Exchanges the application buttons for @p count empty ones, and deletes what the old ones
     * held. The present number and a negative one change nothing; above 5, each surplus button
     * gives the warning of addButton(), which is called for each.
     */
    void setNrOfButtons(int count);

    /**
     * Enables or disables the application button @p index, counted from 0 in the order of adding,
     * with what it holds. An index without a button is ignored.
     */
    void enableButton(int index, bool enable);

    /** The label of the title, to style it; 18 point "Quicksand Book" in magenta. */
    QLabel *getTitleWidget() const;
    /** The label of the subtitle, to style it; 10 point bold "Quicksand Book" in sky blue. */
    QLabel *getSubtitleWidget() const;

public Q_SLOTS:
    void setTitle(QString title) override;
    void setSubtitle(QString subtitle) override;

private:
    Q_DISABLE_COPY(ZEMPageHeader)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
