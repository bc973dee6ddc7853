// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include "app/productlines.h"
#include "holding/fields.h"
#include "holding/zonesplits.h"
#include "model/names.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"
#include "timerbar/cabinet.h"

using namespace Qt::StringLiterals;

namespace {

/// The absolute path of a file or folder of the project.
QString pathOf(const QString &name)
{
    return QFINDTESTDATA(u"../../"_s + name);
}

QString textOf(const QString &path)
{
    QFile file(path);
    REQUIRE(file.open(QIODevice::ReadOnly), path);
    return QString::fromUtf8(file.readAll());
}

/// What a document leads to in the project: links and pictures.
QStringList linksIn(const QString &text)
{
    static const QRegularExpression link(u"\\]\\(([^)]+)\\)|(?:src|srcset)=\"([^\"]+)\""_s);
    QStringList links;
    for (auto found = link.globalMatch(text); found.hasNext();) {
        const QString target = found.next().capturedTexts().mid(1).join(QString());
        if (!target.startsWith("http"_L1))
            links.append(target);
    }
    return links;
}

/// The headings as links name them.
QStringList anchorsIn(const QString &text)
{
    static const QRegularExpression heading(u"^#+ (.*)$"_s, QRegularExpression::MultilineOption);
    static const QRegularExpression others(u"[^\\w -]"_s);
    QStringList anchors;
    for (auto found = heading.globalMatch(text); found.hasNext();)
        anchors.append(found.next().captured(1).toLower().remove(others).replace(u' ', u'-'));
    return anchors;
}

/// The part of a document from one text up to the next occurrence of another.
QString partOf(const QString &document, const QString &start, const QString &end)
{
    const QString text = textOf(pathOf(u"docs/"_s + document));
    const qsizetype first = text.indexOf(start);
    REQUIRE(first >= 0, start);
    const qsizetype last = text.indexOf(end, first + start.size());
    REQUIRE(last >= 0, end);
    return text.sliced(first, last - first);
}

QString formats(const QString &start, const QString &end)
{
    return partOf(u"file-formats.md"_s, start, end);
}

/// The first cells of the table's row.
QString rowOf(const holding::CabinetModel &model)
{
    const holding::CabinetShape &shape = model.shape;
    const int missing = shape.singleBinSecondZone ? 1 : 0;
    return u"| %1 | %2 | %3 | %4 | %5%6 | %7 |"_s.arg(QString(model.type), QString(model.name))
        .arg(shape.rows)
        .arg(shape.zones)
        .arg(shape.binsPerZone)
        .arg(missing > 0 ? u", in the second zone 1"_s : QString())
        .arg(shape.binsPerRow() - missing);
}

void addRow(QLatin1StringView text)
{
    QTest::newRow(text.data()) << u'`' + text + u'`';
}

} // namespace

/// What a table of the program offers or stores stands in the documents.
class TestDocumented : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void holdingModel_data();
    void holdingModel();
    void timerBarModel_data();
    void timerBarModel();
    void zoneSplit_data();
    void zoneSplit();
    void language_data();
    void language();
    void productKey_data();
    void productKey();
    void groupKey_data();
    void groupKey();
    void suffix_data();
    void suffix();
    void linksLeadSomewhere_data();
    void linksLeadSomewhere();
    void everyPictureIsShown();
};

void TestDocumented::holdingModel_data()
{
    QTest::addColumn<QString>("text");
    for (const holding::CabinetModel &model : holding::allModels)
        QTest::newRow(model.name.data()) << rowOf(model);
}

void TestDocumented::holdingModel()
{
    QFETCH(const QString, text);
    QVERIFY2(formats(u"### Cabinets"_s, u"###"_s).contains(text), qPrintable(text));
}

void TestDocumented::timerBarModel_data()
{
    QTest::addColumn<QString>("text");
    for (const QString &model : timerbar::cabinetModels())
        QTest::newRow(qPrintable(model)) << model;
}

void TestDocumented::timerBarModel()
{
    QFETCH(const QString, text);
    QVERIFY(formats(u"Rows and columns are those of the models' names:"_s, u"A file has"_s).contains(text));
}

void TestDocumented::zoneSplit_data()
{
    QTest::addColumn<QString>("text");
    QStringList splits;
    for (const holding::ZoneSplit &split : holding::allZoneSplits) {
        if (!splits.contains(split.text)) {
            splits.append(split.text);
            addRow(split.text);
        }
    }
}

void TestDocumented::zoneSplit()
{
    QFETCH(const QString, text);
    QVERIFY(formats(u"| `zoneSplits` | text |"_s, u"\n"_s).contains(text));
}

void TestDocumented::language_data()
{
    QTest::addColumn<QString>("text");
    for (const QLatin1StringView language : nameLanguages)
        addRow(language);
}

void TestDocumented::language()
{
    QFETCH(const QString, text);
    QVERIFY(formats(u"\nNames: "_s, u"\n\n"_s).contains(text));
}

void TestDocumented::productKey_data()
{
    QTest::addColumn<QString>("text");
    for (const holding::ProductField &field : holding::productFields())
        addRow(field.stored.key);
}

void TestDocumented::productKey()
{
    QFETCH(const QString, text);
    QVERIFY(formats(u"\nProduct:\n"_s, u"\nGroup:\n"_s).contains(text));
}

void TestDocumented::groupKey_data()
{
    QTest::addColumn<QString>("text");
    for (const holding::StoredField &field : holding::groupFields())
        addRow(field.key);
}

void TestDocumented::groupKey()
{
    QFETCH(const QString, text);
    QVERIFY(formats(u"\nGroup:\n"_s, u"\nDay part:\n"_s).contains(text));
}

void TestDocumented::suffix_data()
{
    QTest::addColumn<QString>("text");
    for (const ProductLine &line : productLines()) {
        for (const QLatin1StringView suffix : line.suffixes)
            QTest::newRow(suffix.data()) << suffix + u'`';
    }
}

// In the list of the formats, and where the guide tells what can be opened.
void TestDocumented::suffix()
{
    QFETCH(const QString, text);
    QVERIFY(formats(u"# File formats"_s, u"\n## "_s).contains(text));
    QVERIFY(partOf(u"user-guide.md"_s, u"- **Open**"_s, u"\n- **Save**"_s).contains(text));
}

void TestDocumented::linksLeadSomewhere_data()
{
    QTest::addColumn<QString>("document");
    for (const char *document :
         {"README.md", "CONTRIBUTING.md", "docs/file-formats.md", "docs/user-guide.md"})
        QTest::newRow(document) << QString::fromLatin1(document);
}

void TestDocumented::linksLeadSomewhere()
{
    QFETCH(const QString, document);
    const QString path = pathOf(document);
    const QStringList links = linksIn(textOf(path));
    QVERIFY(!links.isEmpty());
    for (const QString &link : links) {
        const QString name = link.section(u'#', 0, 0);
        const QString anchor = link.section(u'#', 1);
        const QString target = name.isEmpty() ? path : QFileInfo(path).dir().filePath(name);
        QVERIFY2(QFileInfo::exists(target), qPrintable(link));
        QVERIFY2(anchor.isEmpty() || anchorsIn(textOf(target)).contains(anchor), qPrintable(link));
    }
}

// In the light and the dark look, where there are both.
void TestDocumented::everyPictureIsShown()
{
    const QStringList shown = linksIn(textOf(pathOf(u"docs/user-guide.md"_s)));
    const QStringList pictures = QDir(pathOf(u"docs/images"_s)).entryList(QDir::Files);
    QVERIFY(!pictures.isEmpty());
    for (const QString &picture : pictures)
        QVERIFY2(shown.contains(u"images/"_s + picture), qPrintable(picture));
}

QTEST_GUILESS_MAIN(TestDocumented)
#include "tst_documented.moc"
