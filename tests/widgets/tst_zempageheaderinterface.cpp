// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMPageHeader>
#include <ZEMPageHeaderInterface>

#include <QStackedWidget>
#include <QStringList>
#include <QTest>

#include <cstddef>
#include <cstring>
#include <type_traits>

static_assert(std::is_abstract_v<ZEMPageHeaderInterface>);
static_assert(!std::has_virtual_destructor_v<ZEMPageHeaderInterface>);
static_assert(sizeof(ZEMPageHeaderInterface) == sizeof(void *), "only the virtual table");
static_assert(std::is_base_of_v<ZEMPageHeaderInterface, ZEMPageHeader>);

namespace {

// The interface has no virtual destructor, and no header is deleted through it.
ZEM_BEGIN_INTERFACES
/** A host's own header, which writes down what it is told. */
class RecordingHeader : public ZEMPageHeaderInterface
{
public:
    void setTitle(QString title) override { log("title", title); }
    void setSubtitle(QString subtitle) override { log("subtitle", subtitle); }
    void setActionButton(QStackedWidget *widget) override { log("action", widget); }
    void enableActionButton(bool enable) override { log("enable", enable); }
    void setActionButton2(QWidget *widget) override { log("action2", widget); }
    void enableActionButton2(bool enable) override { log("enable2", enable); }
    void setNrOfPages(int count) override { log("pages", count); }
    void setCurrentPage(int page) override { log("page", page); }
    void addButton(QWidget *widget) override { log("add", widget); }
    void removeAllButtons() override { log("remove", QString()); }

    QStringList calls;

private:
    void log(const char *call, const QString &argument)
    {
        calls.append(QLatin1String(call) + QLatin1Char(' ') + argument);
    }
    void log(const char *call, int argument) { log(call, QString::number(argument)); }
    void log(const char *call, const QWidget *argument)
    {
        log(call, argument ? argument->objectName() : QStringLiteral("null"));
    }
};
ZEM_END_INTERFACES

/** The place of a virtual operation in the table of its class. */
template <typename Operation>
std::ptrdiff_t place(Operation operation)
{
    // On x86-64 a pointer to a virtual member begins with its place in the table, plus one.
    std::ptrdiff_t offset = 0;
    std::memcpy(&offset, &operation, sizeof(offset));
    return (offset - 1) / std::ptrdiff_t(sizeof(void *));
}

} // namespace

class tst_ZEMPageHeaderInterface : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hostCanImplementIt();
    void operationsStandInOrder();
    void headerHasItsOwnOrder();
    void headerIsReachedThroughIt();
};

void tst_ZEMPageHeaderInterface::hostCanImplementIt()
{
    QStackedWidget stack;
    stack.setObjectName(QStringLiteral("stack"));
    RecordingHeader recorder;
    ZEMPageHeaderInterface &header = recorder;
    header.setTitle(QStringLiteral("a"));
    header.setSubtitle(QStringLiteral("b"));
    header.setActionButton(&stack);
    header.enableActionButton(true);
    header.setActionButton2(&stack);
    header.enableActionButton2(false);
    header.setNrOfPages(4);
    header.setCurrentPage(3);
    header.addButton(nullptr);
    header.removeAllButtons();
    QCOMPARE(recorder.calls.join(QLatin1Char(',')),
             QStringLiteral("title a,subtitle b,action stack,enable 1,action2 stack,enable2 0,"
                            "pages 4,page 3,add null,remove "));
}

void tst_ZEMPageHeaderInterface::operationsStandInOrder()
{
#ifdef Q_PROCESSOR_X86_64
    using Header = ZEMPageHeaderInterface;
    QCOMPARE(place(&Header::setTitle), std::ptrdiff_t(0));
    QCOMPARE(place(&Header::setSubtitle), std::ptrdiff_t(1));
    QCOMPARE(place(&Header::setActionButton), std::ptrdiff_t(2));
    QCOMPARE(place(&Header::enableActionButton), std::ptrdiff_t(3));
    QCOMPARE(place(&Header::setActionButton2), std::ptrdiff_t(4));
    QCOMPARE(place(&Header::enableActionButton2), std::ptrdiff_t(5));
    QCOMPARE(place(&Header::setNrOfPages), std::ptrdiff_t(6));
    QCOMPARE(place(&Header::setCurrentPage), std::ptrdiff_t(7));
    QCOMPARE(place(&Header::addButton), std::ptrdiff_t(8));
    QCOMPARE(place(&Header::removeAllButtons), std::ptrdiff_t(9));
#else
    QSKIP("knows the layout of member pointers on x86-64 only");
#endif
}

void tst_ZEMPageHeaderInterface::headerHasItsOwnOrder()
{
#ifdef Q_PROCESSOR_X86_64
    const std::ptrdiff_t first = place(&ZEMPageHeader::setActionButton);
    QCOMPARE(place(&ZEMPageHeader::enableActionButton), first + 1);
    QCOMPARE(place(&ZEMPageHeader::setActionButton2), first + 2);
    QCOMPARE(place(&ZEMPageHeader::enableActionButton2), first + 3);
    QCOMPARE(place(&ZEMPageHeader::addButton), first + 4);
    QCOMPARE(place(&ZEMPageHeader::removeAllButtons), first + 5);
    QCOMPARE(place(&ZEMPageHeader::setCurrentPage), first + 6);
    QCOMPARE(place(&ZEMPageHeader::setNrOfPages), first + 7);
    QCOMPARE(place(&ZEMPageHeader::setTitle), first + 8);
    QCOMPARE(place(&ZEMPageHeader::setSubtitle), first + 9);
#else
    QSKIP("knows the layout of member pointers on x86-64 only");
#endif
}

void tst_ZEMPageHeaderInterface::headerIsReachedThroughIt()
{
    ZEMPageHeader widget;
    ZEMPageHeaderInterface &header = widget;
    header.setTitle(QStringLiteral("verbruik"));
    header.setSubtitle(QStringLiteral("vandaag"));
    header.setNrOfPages(5);
    header.addButton(nullptr);
    QCOMPARE(widget.getTitle(), QStringLiteral("verbruik"));
    QCOMPARE(widget.getSubTitle(), QStringLiteral("vandaag"));
    QCOMPARE(widget.getNrOfPages(), 5);
    QCOMPARE(widget.getNrOfButtons(), 1);
}

QTEST_MAIN(tst_ZEMPageHeaderInterface)
#include "tst_zempageheaderinterface.moc"
