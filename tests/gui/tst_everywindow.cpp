// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDir>
#include <QTest>
#include <QXmlStreamReader>

#include "app/productlines.h"
#include "tests/support/everywindow.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

QString className(const QWidget &widget)
{
    return QString::fromLatin1(widget.metaObject()->className());
}

/// What a designer form describes.
struct Form
{
    QString className;
    QString rootClass;

    [[nodiscard]] bool isPane() const { return rootClass == "QWidget"_L1; }
};

Form formIn(const QString &path)
{
    Form form;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return form;
    QXmlStreamReader xml(&file);
    while (form.rootClass.isEmpty() && !xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "class"_L1)
            form.className = xml.readElementText();
        else if (xml.name() == "widget"_L1)
            form.rootClass = xml.attributes().value("class"_L1).toString();
    }
    return form;
}

} // namespace

/// The rules for all windows are checked on all of them: none is missing in everyWindow().
class TestEveryWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { failOnWarnings(); }
    void formIsAmongThem_data();
    void formIsAmongThem();
    void editorIsAmongThem_data();
    void editorIsAmongThem();
    void editorBelongsToALine_data();
    void editorBelongsToALine();

private:
    QStringList m_windows;         ///< class names
    QStringList m_panes;           ///< of what is in the windows
    QStringList m_lines;           ///< names of the product lines whose editors are among the windows
    QMap<QString, bool> m_editors; ///< class names of the editors; true for those of a product line
};

void TestEveryWindow::initTestCase()
{
    failOnWarnings();
    for (const WindowKind &kind : everyWindow()) {
        const OpenWindow open(kind);
        m_windows.append(className(open.window()));
        for (const QWidget *widget : open.window().findChildren<QWidget *>())
            m_panes.append(className(*widget));
        const qsizetype before = m_lines.size();
        for (const ProductLine &line : productLines()) {
            if (line.editor.cast(&open.window()))
                m_lines.append(line.name);
        }
        if (qobject_cast<const MenuEditor *>(&open.window()))
            m_editors.insert(className(open.window()), m_lines.size() > before);
    }
}

void TestEveryWindow::formIsAmongThem_data()
{
    QTest::addColumn<QString>("path");
    const QFileInfoList forms = QDir(u":/forms"_s).entryInfoList();
    QVERIFY(!forms.isEmpty());
    for (const QFileInfo &form : forms)
        QTest::newRow(qPrintable(form.fileName())) << form.filePath();
}

void TestEveryWindow::formIsAmongThem()
{
    QFETCH(const QString, path);
    const Form form = formIn(path);
    QVERIFY(!form.className.isEmpty() && !form.rootClass.isEmpty());
    const QStringList &present = form.isPane() ? m_panes : m_windows;
    QVERIFY2(present.contains(form.className), qPrintable(u"everyWindow() lacks "_s + form.className));
}

void TestEveryWindow::editorIsAmongThem_data()
{
    QTest::addColumn<QString>("line");
    for (const ProductLine &line : productLines())
        QTest::newRow(qPrintable(line.name)) << line.name;
}

void TestEveryWindow::editorIsAmongThem()
{
    QFETCH(const QString, line);
    QVERIFY2(m_lines.contains(line), qPrintable(u"everyWindow() lacks the editor of "_s + line));
}

void TestEveryWindow::editorBelongsToALine_data()
{
    QTest::addColumn<bool>("belongs");
    QVERIFY(!m_editors.isEmpty());
    for (auto editor = m_editors.begin(); editor != m_editors.end(); ++editor)
        QTest::newRow(qPrintable(editor.key())) << editor.value();
}

void TestEveryWindow::editorBelongsToALine()
{
    QFETCH(const bool, belongs);
    QVERIFY2(belongs, qPrintable(u"productLines() lacks the line of "_s +
                                 QString::fromLatin1(QTest::currentDataTag())));
}

QTEST_MAIN(TestEveryWindow)
#include "tst_everywindow.moc"
