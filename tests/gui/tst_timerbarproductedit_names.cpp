// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>

#include "tests/gui/edittimerbarproduct.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

// Each test runs on the name and on the short name.
class TestTimerBarProductEditNames : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void init();
    void everyAsciiCharacter();
    void otherCharacters_data();
    void otherCharacters();
    void cursorAfterARevert_data();
    void cursorAfterARevert();
    void pasting_data();
    void pasting();
    void lengthIsLimited();
    void emptyTextIsAccepted();
    void filledTextIsNotChecked();
    void filledTextCanBeReplaced();
    void secondRevertGoesBackToo();

private:
    [[nodiscard]] ModalAnswers::Box fault() const
    {
        return ModalAnswers::entryFault(
            m_isShort ? u"Product short name should be English characters or numbers only"_s
                      : u"Product name should be English characters or numbers only"_s);
    }
    [[nodiscard]] QLineEdit &field(const TimerBarProductEditing &editing) const
    {
        return editing.get<QLineEdit>(m_isShort ? "txtShortName" : "txtProductName");
    }
    // The dialog with this text in the field, unchecked, and the cursor at its end.
    [[nodiscard]] std::unique_ptr<TimerBarProductEditing> openWith(const QString &text) const;

    bool m_isShort = false;
};

namespace {

void typeCharacter(QLineEdit &edit, const QString &character)
{
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, character);
    QCoreApplication::sendEvent(&edit, &press);
    QKeyEvent release(QEvent::KeyRelease, 0, Qt::NoModifier, character);
    QCoreApplication::sendEvent(&edit, &release);
}

void paste(QLineEdit &edit, const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
}

} // namespace

void TestTimerBarProductEditNames::initTestCase_data()
{
    QTest::addColumn<bool>("isShort");
    QTest::newRow("name") << false;
    QTest::newRow("short name") << true;
}

void TestTimerBarProductEditNames::init()
{
    failOnWarnings();
    QFETCH_GLOBAL(bool, isShort);
    m_isShort = isShort;
}

std::unique_ptr<TimerBarProductEditing> TestTimerBarProductEditNames::openWith(const QString &text) const
{
    auto editing = std::make_unique<TimerBarProductEditing>(0, [this, &text](ProductInfo &product) {
        if (m_isShort)
            product.set_productShortName(text);
        else
            product.set_productName({text});
    });
    field(*editing).setFocus();
    field(*editing).end(false);
    return editing;
}

void TestTimerBarProductEditNames::everyAsciiCharacter()
{
    const auto editing = openWith(u"Ab"_s);
    QLineEdit &edit = field(*editing);
    for (char code = ' '; code < 127; ++code) {
        const QChar character = QLatin1Char(code);
        const bool isLetterOrDigit =
            QLatin1StringView("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789")
                .contains(character);
        if (isLetterOrDigit || (code == ' ' && !m_isShort)) {
            QTest::keyClick(&edit, code);
            QCOMPARE(edit.text(), u"Ab"_s + character);
            QTest::keyClick(&edit, Qt::Key_Backspace);
        } else {
            ModalAnswers answers;
            answers.expectBox(fault(), QMessageBox::Close);
            QTest::keyClick(&edit, code);
            QVERIFY2(answers.allAnswered(), &code);
        }
        QCOMPARE(edit.text(), u"Ab"_s);
        QCOMPARE(edit.cursorPosition(), 2);
    }
}

void TestTimerBarProductEditNames::otherCharacters_data()
{
    QTest::addColumn<QString>("character");
    QTest::newRow("Latin-1 letter") << u"\u00e9"_s;
    QTest::newRow("Latin-1 blank") << u"\u00a0"_s;
    QTest::newRow("superscript digit") << u"\u00b2"_s;
    QTest::newRow("letter whose low byte is a letter's") << u"\u0141"_s;
    QTest::newRow("Cyrillic letter") << u"\u0410"_s;
    QTest::newRow("wide letter") << u"\uff21"_s;
    QTest::newRow("Arabic digit") << u"\u0663"_s;
    QTest::newRow("question mark's stand-in") << u"\u20ac"_s;
}

void TestTimerBarProductEditNames::otherCharacters()
{
    QFETCH(QString, character);
    const auto editing = openWith(u"Ab"_s);
    ModalAnswers answers;
    answers.expectBox(fault(), QMessageBox::Close);
    typeCharacter(field(*editing), character);
    QVERIFY(answers.allAnswered());
    QCOMPARE(field(*editing).text(), u"Ab"_s);
    QCOMPARE(field(*editing).cursorPosition(), 2);
}

void TestTimerBarProductEditNames::cursorAfterARevert_data()
{
    QTest::addColumn<int>("cursor");
    QTest::newRow("at the start") << 0;
    QTest::newRow("inside") << 1;
    QTest::newRow("near the end") << 2;
    QTest::newRow("at the end") << 3;
}

// A refused key leaves the cursor where it was before the key.
void TestTimerBarProductEditNames::cursorAfterARevert()
{
    QFETCH(int, cursor);
    const auto editing = openWith(u"Ham"_s);
    field(*editing).setCursorPosition(cursor);
    {
        ModalAnswers answers;
        answers.expectBoxEscaped(fault());
        QTest::keyClick(&field(*editing), Qt::Key_Minus);
    }
    QCOMPARE(field(*editing).text(), u"Ham"_s);
    QCOMPARE(field(*editing).cursorPosition(), cursor);
    ui::activate(*editing->dialog);
    QTest::keyClick(&field(*editing), 'x');
    QCOMPARE(field(*editing).text(), u"Ham"_s.insert(cursor, u'x'));
}

void TestTimerBarProductEditNames::pasting_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result"); // of the field that holds "A"
    QTest::addColumn<bool>("accepted");
    QTest::newRow("letters") << u"bC1"_s << u"AbC1"_s << true;
    QTest::newRow("one wrong character among them") << u"b-C"_s << u"A"_s << false;
    QTest::newRow("wrong behind the limit of the field")
        << u"bbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbb-"_s << u"Abbbbbbbbbbbbbbbbbbbbbbbb"_s << true;
    QTest::newRow("accents") << u"cr\u00e8"_s << u"A"_s << false;
    QTest::newRow("line break") << u"b\nc"_s << u"A"_s << false;
}

void TestTimerBarProductEditNames::pasting()
{
    QFETCH(QString, text);
    QFETCH(QString, result);
    QFETCH(bool, accepted);
    const auto editing = openWith(u"A"_s);
    {
        ModalAnswers answers;
        if (!accepted)
            answers.expectBox(fault(), QMessageBox::Close);
        paste(field(*editing), text);
    }
    QCOMPARE(field(*editing).text(), m_isShort ? result.left(4) : result);
}

void TestTimerBarProductEditNames::lengthIsLimited()
{
    const auto editing = openWith({});
    QTest::keyClicks(&field(*editing), QString(40, u'a'));
    QCOMPARE(field(*editing).text(), QString(m_isShort ? 4 : 25, u'a'));
}

// After it, a refused character brings the empty text back, not the one before.
void TestTimerBarProductEditNames::emptyTextIsAccepted()
{
    const auto editing = openWith(u"Ham"_s);
    QTest::keyClick(&field(*editing), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field(*editing), Qt::Key_Delete);
    QCOMPARE(field(*editing).text(), QString());
    ModalAnswers answers;
    answers.expectBox(fault(), QMessageBox::Close);
    QTest::keyClick(&field(*editing), '/');
    QCOMPARE(field(*editing).text(), QString());
    QCOMPARE(field(*editing).cursorPosition(), 0);
}

void TestTimerBarProductEditNames::filledTextIsNotChecked()
{
    const QString odd = m_isShort ? u"E/\u00e9 "_s : u"Eggs / Egg Patties"_s;
    const auto editing = openWith(odd);
    QCOMPARE(field(*editing).text(), odd);
    {
        ModalAnswers answers;
        answers.expectBox(fault(), QMessageBox::Close);
        QTest::keyClick(&field(*editing), Qt::Key_Backspace);
    }
    QCOMPARE(field(*editing).text(), odd);
    ui::activate(*editing->dialog);
    const QStringList before = editing->record();
    editing->saveAccepted();
    QCOMPARE(editing->record(), before);
}

void TestTimerBarProductEditNames::filledTextCanBeReplaced()
{
    const auto editing = openWith(u"E/ "_s);
    ui::type(field(*editing), u"Eggs"_s);
    QCOMPARE(field(*editing).text(), u"Eggs"_s);
    editing->saveAccepted();
    QVERIFY(editing->record().contains(u"Eggs"_s));
}

void TestTimerBarProductEditNames::secondRevertGoesBackToo()
{
    const auto editing = openWith(u"A"_s);
    for (int i = 0; i < 3; ++i) {
        ModalAnswers answers;
        answers.expectBox(fault(), QMessageBox::Close);
        QTest::keyClick(&field(*editing), '.');
    }
    QTest::keyClick(&field(*editing), 'b');
    {
        ModalAnswers answers;
        answers.expectBox(fault(), QMessageBox::Close);
        QTest::keyClick(&field(*editing), '.');
    }
    QCOMPARE(field(*editing).text(), u"Ab"_s); // the last accepted text, not the first
}

QTEST_MAIN(TestTimerBarProductEditNames)
#include "tst_timerbarproductedit_names.moc"
