// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QVBoxLayout>
#include <ZEMPageBackground>
#include <ZEMPageHeader>
#include <ZEMStyle>

namespace {

ZEMPageHeader *makeHeader()
{
    auto *header = new ZEMPageHeader;
    header->setTitle(QStringLiteral("Kitchen"));
    header->setSubtitle(QStringLiteral("what it uses by the hour"));
    header->setNrOfPages(0);
    return header;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QApplication::setStyle(new ZEMStyle(nullptr)); // light texts
    ZEMStyle::setApplicationFonts();

    ZEMPageBackground page;
    page.setBackgroundColor(QColor(22, 32, 40));
    page.resize(640, 480);
    auto *rows = new QVBoxLayout(&page);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(makeHeader());
    rows->addStretch();
    page.show();
    return QApplication::exec();
}
