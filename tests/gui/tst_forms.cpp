// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDir>
#include <QLayout>
#include <QTest>
#include <QXmlStreamReader>

#include "tests/support/everywindow.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

/// What a designer form says of its window and of the texts in it.
struct Form
{
    QString className;
    QSize size;
    QMap<QString, QString> texts; ///< by object name
    QList<int> margins;           ///< in pixels, those around the window first
    QList<int> spacings;
};

// The reader stands at the start of a property.
void readProperty(QXmlStreamReader &xml, const QString &widget, Form &form)
{
    const QString name = xml.attributes().value("name"_L1).toString();
    if (name == "text"_L1 && xml.readNextStartElement()) {
        form.texts.insert(widget, xml.readElementText());
    } else if (name.endsWith("Margin"_L1) && xml.readNextStartElement()) {
        form.margins.append(xml.readElementText().toInt());
    } else if (name.endsWith("pacing"_L1) && xml.readNextStartElement()) {
        form.spacings.append(xml.readElementText().toInt());
    } else if (name == "geometry"_L1 && form.size.isEmpty() && xml.readNextStartElement()) {
        while (xml.readNextStartElement()) {
            const QString part = xml.name().toString();
            const int value = xml.readElementText().toInt();
            if (part == "width"_L1)
                form.size.setWidth(value);
            else if (part == "height"_L1)
                form.size.setHeight(value);
        }
    }
}

Form formIn(const QString &path)
{
    Form form;
    QFile file(path);
    REQUIRE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    QString widget;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "class"_L1 && form.className.isEmpty())
            form.className = xml.readElementText();
        else if (xml.name() == "widget"_L1)
            widget = xml.attributes().value("name"_L1).toString();
        else if (xml.name() == "property"_L1)
            readProperty(xml, widget, form);
    }
    return form;
}

Form formOf(const QString &className)
{
    for (const QFileInfo &file : QDir(u":/forms"_s).entryInfoList()) {
        if (Form form = formIn(file.filePath()); form.className == className)
            return form;
    }
    return {};
}

} // namespace

/// The windows against the designer forms that they are made from.
class TestForms : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void windowsHaveTheirDesignedSize_data() { addWindowRows(); }
    void windowsHaveTheirDesignedSize();
    void distancesAreOfOneGrid_data();
    void distancesAreOfOneGrid();
    void designerTexts_data();
    void designerTexts();
};

// At the default font: a larger one may need more.
void TestForms::windowsHaveTheirDesignedSize()
{
    QFETCH(const std::size_t, kind);
    const OpenWindow open(everyWindow()[kind]);
    const Form form = formOf(QString::fromLatin1(open.window().metaObject()->className()));
    QVERIFY(!form.size.isEmpty());
    // An editor is higher by its line about things to look at, where it has no room to spare.
    const auto *line = open.window().findChild<QWidget *>(u"btnFindings"_s);
    const int room = line ? line->height() + open.window().layout()->spacing() : 0;
    QCOMPARE(open.window().width(), form.size.width());
    QCOMPARE(qBound(form.size.height(), open.window().height(), form.size.height() + room),
             open.window().height());
}

void TestForms::distancesAreOfOneGrid_data()
{
    QTest::addColumn<QString>("path");
    const QFileInfoList forms = QDir(u":/forms"_s).entryInfoList();
    QVERIFY(!forms.isEmpty());
    for (const QFileInfo &form : forms)
        QTest::newRow(qPrintable(form.fileName())) << form.filePath();
}

// Within what belongs together they may be smaller.
void TestForms::distancesAreOfOneGrid()
{
    static const QList<int> steps{8, 12, 16};
    static const QList<int> within{0, 2, 4};
    QFETCH(const QString, path);
    const Form form = formIn(path);
    QVERIFY(!form.className.isEmpty());
    const QList<int> distances = form.margins + form.spacings;
    for (const int distance : distances)
        QVERIFY2(steps.contains(distance) || within.contains(distance),
                 qPrintable(QString::number(distance)));
}

void TestForms::designerTexts_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("text");
    const auto add = [](const QString &className, const QString &widget, const QString &text) {
        QTest::addRow("%s, %s", qPrintable(className), qPrintable(widget)) << className << widget << text;
    };
    const QString details = u"ProductDetails"_s;
    add(details, u"txtName"_s, u"New Item"_s);
    add(details, u"txtTemp1"_s, u"175°F"_s);
    add(details, u"txtTemp2"_s, u"175°F"_s);
    for (const QString &time : {u"txtHoldTime"_s, u"txtWarningTime"_s, u"txtResetTime"_s})
        add(details, time, u"00:00:00"_s);
    add(details, u"txtFanSpeed"_s, u"3500 (RPM)"_s);
    add(details, u"txtLidType"_s, u"None"_s);
    add(details, u"txtBottomType"_s, u"Normal"_s);
    add(u"GroupEdit"_s, u"txtFanSpeed"_s, u"3500 RPM"_s);
    add(u"GroupEdit"_s, u"txtLidType"_s, u"None"_s);
    add(u"AboutApp"_s, u"lblVersion"_s, u"Version 0.1.0"_s);
}

// They are what a form shows in the designer and what translators see.
void TestForms::designerTexts()
{
    QFETCH(const QString, className);
    QFETCH(const QString, widget);
    const Form form = formOf(className);
    QVERIFY(form.texts.contains(widget));
    QTEST(form.texts.value(widget), "text");
}

QTEST_MAIN(TestForms)
#include "tst_forms.moc"
