// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLES_H
#define SAMPLES_H

class QWidget;
class QwtLegendItem;
class ZEMAnimatedArrows;
class ZEMBarIndicator;
class ZEMCurrentStatusDetails;
class ZEMCurrentStatusDetailsItem;
class ZEMCurrentStatusWidget;
class ZEMDialogPopup;
class ZEMDialogShowText;
class ZEMHistogram;
class ZEMHistogramButton;
class ZEMHistogramLegend;
class ZEMHistogramLegendItem;
class ZEMHistogramWidget;
class ZEMListView;
class ZEMMiniDayHistogram;
class ZEMNotificationButton;
class ZEMNotificationIcon;
class ZEMProfileButton;
class ZEMRadioButton;
class ZEMSimpleListView;
class ZEMThreeStars;
class ZEMTotalsTodayWidget;
class ZEMVirtualKey;
class ZEMVirtualKeyboard;

/**
 * What a new widget shows in Designer, so that a form looks alive: data that a program gives it
 * while it runs. None of it is saved with the form.
 */
namespace Samples {

/**
 * The texts of ZEMStyle, for what has a dark ground of its own. All else has those of the form.
 */
void lightTexts(QWidget &widget);

void bar(ZEMBarIndicator &bar);
void popup(ZEMDialogPopup &dialog);
void notificationButton(ZEMNotificationButton &button);
void notificationIcon(ZEMNotificationIcon &icon);
void profile(ZEMProfileButton &profile);
void radioButton(ZEMRadioButton &dot);
void stars(ZEMThreeStars &rating);

void key(ZEMVirtualKey &key);
void board(ZEMVirtualKeyboard &board);
void showText(ZEMDialogShowText &dialog);

void list(ZEMListView &page);
void simpleList(ZEMSimpleListView &page);

void legendItem(QwtLegendItem &item);
void chartLegendItem(ZEMHistogramLegendItem &item);
void legend(ZEMHistogramLegend &legend);
void dayChart(ZEMHistogram &chart);
void weekChart(ZEMHistogram &chart);
void monthChart(ZEMHistogram &chart);
void miniDayChart(ZEMMiniDayHistogram &chart);
void chartButton(ZEMHistogramButton &tile);
void chartPage(ZEMHistogramWidget &page);

void arrows(ZEMAnimatedArrows &arrows);
void detailsItem(ZEMCurrentStatusDetailsItem &item);
void details(ZEMCurrentStatusDetails &details);
void status(ZEMCurrentStatusWidget &tile);
void totals(ZEMTotalsTodayWidget &tile);

} // namespace Samples

#endif
