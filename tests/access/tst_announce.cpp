// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "tests/access/heard.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"
#include "widgets/announce.h"
#include "widgets/bingrid.h"
#include "widgets/emptyhint.h"
#include "widgets/multiselection.h"
#include "widgets/numberedrows.h"

using namespace Qt::StringLiterals;

namespace {

const QString removing = u"Choose the bins to clear, then press Remove."_s;
const QString assigning = u"Click a bin to assign it. Hold a filled bin to clear bins."_s;

/// A window with a label, and a list of three rows in which several can be chosen.
class Form
{
public:
    Form()
        : layout(&window)
        , label(new QLabel)
        , list(new QListWidget)
        , button(new QPushButton)
    {
        label->setObjectName(u"label"_s);
        list->setObjectName(u"list"_s);
        button->setObjectName(u"button"_s);
        for (QWidget *widget : QList<QWidget *>{label, list, button})
            layout.addWidget(widget);
        numberedrows::preparePlainList(list);
        for (const auto &name : {u"Bacon"_s, u"Chili"_s, u"Ham"_s})
            numberedrows::append(list, name);
        selection = new MultiSelection(list, button);
        selection->setActive(false);
        ui::show(window);
    }

    QWidget window;
    QVBoxLayout layout;
    QLabel *label;
    QListWidget *list;
    QPushButton *button;
    MultiSelection *selection;
};

} // namespace

/// What the shared widgets tell screen readers.
class TestAnnounce : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void newsIsTold();
    void sameNewsIsToldAgain();
    void hiddenNewsIsNoAlert();
    void pairIsReadAsOne();
    void pairOfNothingIsSilent();
    void pairTellsWhatIsNoText();
    void modeOfTheGridIsTold();
    void modeOfTheListIsTold();
    void rowMarksAreTold();
    void rowsAreDescribedWhenAsked();
    void undescribedListsHaveNone();
    void refillingIsNotTold();
    void emptyListTellsWhatToDoAfterTheMode();
};

void TestAnnounce::newsIsTold()
{
    const Form form;
    Heard heard;
    announce::news(form.label, u"Done"_s);
    QCOMPARE(heard.take(), (QStringList{u"name label: Done"_s, u"alert label: Done"_s}));
}

void TestAnnounce::sameNewsIsToldAgain()
{
    const Form form;
    form.label->setText(u"Done"_s);
    Heard heard;
    announce::news(form.label, u"Done"_s);
    QCOMPARE(heard.take(), (QStringList{u"name label: Done"_s, u"alert label: Done"_s}));
}

void TestAnnounce::hiddenNewsIsNoAlert()
{
    const Form form;
    form.label->hide();
    Heard heard;
    announce::news(form.label, u"Done"_s);
    QCOMPARE(form.label->text(), u"Done"_s);
    form.label->show();
    QCOMPARE(heard.take(), QStringList());
}

void TestAnnounce::pairIsReadAsOne()
{
    const QLabel label(u"Name:"_s);
    QLabel value(u"%1 & Ham"_s);
    announce::pair(&label, &value);
    QCOMPARE(spokenName(value), u"Name: %1 & Ham"_s);
    value.setText(QString(1'000'000, u'x'));
    announce::pair(&label, &value);
    QVERIFY(spokenName(value).size() < 600);
}

void TestAnnounce::pairOfNothingIsSilent()
{
    const QLabel label(u"Name:"_s);
    QLabel value(u"Ham"_s);
    announce::pair(&label, &value);
    value.setText({});
    announce::pair(&label, &value);
    QCOMPARE(spokenName(value), QString());
}

void TestAnnounce::pairTellsWhatIsNoText()
{
    const QLabel label(u"Color:"_s);
    QLabel value;
    announce::pair(&label, &value, u"red"_s);
    QCOMPARE(spokenName(value), u"Color: red"_s);
}

void TestAnnounce::modeOfTheGridIsTold()
{
    const Form form;
    BinGrid::showHint(form.label, false);
    Heard heard;
    BinGrid::showHint(form.label, true);
    QCOMPARE(heard.take(), (QStringList{u"name label: "_s + removing, u"alert label: "_s + removing}));
    BinGrid::showHint(form.label, false);
    QCOMPARE(heard.take(), (QStringList{u"name label: "_s + assigning, u"alert label: "_s + assigning}));
}

void TestAnnounce::modeOfTheListIsTold()
{
    const Form form;
    Heard heard;
    form.selection->setActive(true);
    QCOMPARE(heard.take(), (QStringList{u"name button: Cancel Selection"_s,
                                        u"description list: Multiple selection: Space marks rows."_s}));
    form.selection->setActive(false);
    QCOMPARE(heard.take(), (QStringList{u"name button: Multiple Selection"_s, u"description list: "_s}));
}

void TestAnnounce::rowMarksAreTold()
{
    const Form form;
    form.selection->setActive(true);
    Heard heard;
    ui::clickRow(*form.list, 1);
    QCOMPARE(heard.take().filter(u"check"_s), QStringList{u"check list/1: on"_s});
    ui::clickRow(*form.list, 1);
    QCOMPARE(heard.take().filter(u"check"_s), QStringList{u"check list/1: off"_s});
    form.selection->setActive(false);
    QCOMPARE(heard.take().filter(u"check"_s), QStringList());
}

void TestAnnounce::rowsAreDescribedWhenAsked()
{
    const Form form;
    int asked = 0;
    numberedrows::describe(form.list, [&asked](int row) {
        ++asked;
        return u"row %1"_s.arg(row);
    });
    form.list->grab();
    QCOMPARE(asked, 0);
    QCOMPARE(spokenDescription(*form.list, 2), u"row 2"_s);
    QCOMPARE(asked, 1);
}

void TestAnnounce::undescribedListsHaveNone()
{
    const Form form;
    QCOMPARE(spokenDescription(*form.list, 0), QString());
}

void TestAnnounce::refillingIsNotTold()
{
    const Form form;
    showWhenEmpty(form.list, u"Add one"_s);
    Heard heard;
    form.list->clear();
    numberedrows::append(form.list, u"Bacon"_s);
    QCoreApplication::processEvents();
    QCOMPARE(heard.take().filter(u"description"_s), QStringList());
    form.list->clear();
    QTRY_COMPARE(form.list->accessibleDescription(), u"Add one"_s);
    QCOMPARE(heard.take().filter(u"description"_s), QStringList{u"description list: Add one"_s});
}

void TestAnnounce::emptyListTellsWhatToDoAfterTheMode()
{
    const Form form;
    showWhenEmpty(form.list, u"Add one"_s);
    form.selection->setActive(true);
    form.list->clear();
    QTRY_COMPARE(form.list->accessibleDescription(), u"Add one"_s);
    form.selection->setActive(false);
    QCOMPARE(form.list->accessibleDescription(), u"Add one"_s);
}

QTEST_MAIN(TestAnnounce)
#include "tst_announce.moc"
