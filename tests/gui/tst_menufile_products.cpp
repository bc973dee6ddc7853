// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/productedit.h"
#include "tests/gui/openeditor.h"
#include "tests/support/modalanswers.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

samplefile::Menu threeProducts(const QJsonObject &header = samplefile::header())
{
    samplefile::Menu menu;
    menu.header = header;
    menu.products = {samplefile::product(1, u"Bacon"_s), samplefile::product(4, u"Chili"_s),
                     samplefile::product(7, u"Gravy"_s)};
    menu.groups = {samplefile::group(2, u"Meats"_s, {4, 1, 4, 7}, {{u"defaultProd"_s, 2}}),
                   samplefile::group(3, u"Sauces"_s, {7, 1}, {{u"defaultProd"_s, 1}})};
    menu.layout = {samplefile::daypart(u"Morning"_s, {4, 2, 4, 7}),
                   samplefile::daypart(u"Evening"_s, {1, 4, 0, 3})};
    return menu;
}

// Which of Add, Edit, Duplicate, Delete are enabled, as "A E D X" with a dot for each that is not.
QString enabledButtons(OpenEditor &editor)
{
    QString enabled;
    for (const auto &[name, letter] :
         {std::pair{"btnAddProduct", u'A'}, std::pair{"btnEditProduct", u'E'},
          std::pair{"btnDuplicateProduct", u'D'}, std::pair{"btnDeleteProduct", u'X'}})
        enabled += ui::get<QWidget>(*editor, name).isEnabled() ? QChar(letter) : QChar(u'.');
    return enabled;
}

QJsonArray savedProducts(OpenEditor &editor)
{
    return editor.saved().value(u"products"_s).toArray();
}

QList<int> membersOf(const QJsonObject &saved, int group)
{
    QList<int> ids;
    const QJsonArray members =
        saved.value(u"productGroups"_s).toArray().at(group).toObject().value(u"products"_s).toArray();
    for (const QJsonValue id : members)
        ids.append(id.toInt());
    return ids;
}

void saveAs(ProductEdit &dialog, const QString &name)
{
    ui::type(dialog, "txtName", name);
    ui::click(dialog, "btnSave");
}

} // namespace

class TestMenuFileProducts : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void openedMenuHasNoCurrentProduct();
    void chosenProductEnablesTheButtons();
    void newProductStartsWithDefaults_data();
    void newProductStartsWithDefaults();
    void addedProductTakesTheFreeIdAndIsCurrent();
    void cancelledAddChangesNothing();
    void editedProductStaysCurrent();
    void doubleClickEdits();
    void doubleClickWithCtrlEdits();
    void duplicateCopiesAllButTheLock();
    void cancelledDuplicateChangesNothing();
    void deleteAsksAndCleansUp();
    void refusedDeleteChangesNothing_data();
    void refusedDeleteChangesNothing();
    void keyboardReachesEverything();
    void manyProductsAreShown();
    void oddIdsAreKept();
};

void TestMenuFileProducts::openedMenuHasNoCurrentProduct()
{
    OpenEditor editor(threeProducts());
    QCOMPARE(ui::textsOf(editor.products()), (QStringList{u"  1 Bacon"_s, u"  2 Chili"_s, u"  3 Gravy"_s}));
    QCOMPARE(editor.products().currentRow(), -1);
    QCOMPARE(enabledButtons(editor), u"A..."_s);
    QVERIFY(ui::get<QWidget>(*editor, "btnSelectMultiProduct").isEnabled());
    QCOMPARE(editor.productDetail("txtName").text(), QString());
    QVERIFY(ui::get<QListWidget>(*editor, "listWidgetProducts").isVisible());
}

void TestMenuFileProducts::chosenProductEnablesTheButtons()
{
    OpenEditor editor(threeProducts());
    ui::clickRow(editor.products(), 1);
    QCOMPARE(enabledButtons(editor), u"AEDX"_s);
    QCOMPARE(editor.productDetail("txtName").text(), u"Chili"_s);
    QTest::keyClick(&editor.products(), Qt::Key_Down);
    QCOMPARE(editor.productDetail("txtName").text(), u"Gravy"_s);
    ui::clickRow(editor.products(), 2, Qt::ControlModifier);
    QVERIFY(editor.products().selectedItems().isEmpty());
    QCOMPARE(enabledButtons(editor), u"A..."_s);
    QCOMPARE(editor.productDetail("txtName").text(), QString());
}

void TestMenuFileProducts::newProductStartsWithDefaults_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("zoneSplits");
    QTest::newRow("2 bins per zone") << u"KTR54"_s << u"1/2"_s;
    QTest::newRow("3 bins per zone") << u"KTR33"_s << u"1/3"_s;
}

void TestMenuFileProducts::newProductStartsWithDefaults()
{
    QFETCH(QString, model);
    QFETCH(QString, zoneSplits);
    samplefile::Menu menu;
    menu.header = samplefile::headerWithAllSwitches({{u"cabinetModel"_s, model}});
    OpenEditor editor(menu);
    ModalAnswers answers;
    answers.expect<ProductEdit>([](ProductEdit &dialog) { saveAs(dialog, u"Ham"_s); });
    ui::click(*editor, "btnAddProduct");
    QCOMPARE(savedProducts(editor), QJsonArray{samplefile::product(
                                        1, u"Ham"_s, {{u"fanSpeed"_s, 0}, {u"zoneSplits"_s, zoneSplits}})});
}

void TestMenuFileProducts::addedProductTakesTheFreeIdAndIsCurrent()
{
    OpenEditor editor(threeProducts());
    ui::clickRow(editor.products(), 0);
    for (const int id : {5, 6, 8}) { // 2 and 3 are groups'
        ModalAnswers answers;
        answers.expect<ProductEdit>([id](ProductEdit &dialog) { saveAs(dialog, u"New %1"_s.arg(id)); });
        ui::click(*editor, "btnAddProduct");
        const QJsonArray products = savedProducts(editor);
        QCOMPARE(products.last().toObject().value(u"productId"_s).toInt(), id);
        QCOMPARE(editor.products().currentRow(), products.size() - 1);
        QCOMPARE(editor.products().selectedItems().size(), 1);
        QCOMPARE(editor.productDetail("txtName").text(), u"New %1"_s.arg(id));
        QCOMPARE(enabledButtons(editor), u"AEDX"_s);
    }
    QCOMPARE(ui::textsOf(editor.products()).last(), u"  6 New 8"_s);
}

void TestMenuFileProducts::cancelledAddChangesNothing()
{
    OpenEditor editor(threeProducts());
    const QJsonObject before = editor.saved();
    ui::clickRow(editor.products(), 1);
    ModalAnswers answers;
    answers.expect<ProductEdit>([](ProductEdit &dialog) {
        ui::type(dialog, "txtName", u"Ham"_s);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    ui::click(*editor, "btnAddProduct");
    QCOMPARE(editor.saved(), before);
    QCOMPARE(editor.products().count(), 3);
    QCOMPARE(editor.products().currentRow(), 1);
    QCOMPARE(enabledButtons(editor), u"AEDX"_s);
}

void TestMenuFileProducts::editedProductStaysCurrent()
{
    OpenEditor editor(threeProducts());
    ui::clickRow(editor.products(), 1);
    ModalAnswers answers;
    answers.expect<ProductEdit>([](ProductEdit &dialog) { saveAs(dialog, u"Ham"_s); });
    ui::click(*editor, "btnEditProduct");
    QCOMPARE(editor.products().currentRow(), 1);
    QCOMPARE(ui::textsOf(editor.products()), (QStringList{u"  1 Bacon"_s, u"  2 Ham"_s, u"  3 Gravy"_s}));
    QCOMPARE(editor.productDetail("txtName").text(), u"Ham"_s);
}

void TestMenuFileProducts::doubleClickEdits()
{
    OpenEditor editor(threeProducts());
    ModalAnswers answers;
    answers.expect<ProductEdit>([](ProductEdit &dialog) { saveAs(dialog, u"Ham"_s); });
    ui::doubleClickRow(editor.products(), 2);
    QVERIFY(answers.allAnswered());
    QCOMPARE(ui::textsOf(editor.products()).last(), u"  3 Ham"_s);
    QCOMPARE(editor.products().currentRow(), 2);
    QWidget *viewport = editor.products().viewport();
    const QPoint below(viewport->width() / 2, viewport->height() - 5);
    QVERIFY(!editor.products().itemAt(below));
    QTest::mouseClick(viewport, Qt::LeftButton, {}, below);
    QTest::mouseDClick(viewport, Qt::LeftButton, {}, below); // an unexpected dialog would fail
    QCOMPARE(enabledButtons(editor), u"A..."_s);
}

// Ctrl takes the selection off a selected row; the row is meant all the same.
void TestMenuFileProducts::doubleClickWithCtrlEdits()
{
    OpenEditor editor(threeProducts());
    ui::clickRow(editor.products(), 2);
    ModalAnswers answers;
    answers.expect<ProductEdit>([](ProductEdit &dialog) { saveAs(dialog, u"Ham"_s); });
    ui::doubleClickRow(editor.products(), 2, Qt::ControlModifier);
    QVERIFY(answers.allAnswered());
    QCOMPARE(ui::textsOf(editor.products()), (QStringList{u"  1 Bacon"_s, u"  2 Chili"_s, u"  3 Ham"_s}));
    QCOMPARE(editor.products().currentRow(), 2);
}

void TestMenuFileProducts::duplicateCopiesAllButTheLock()
{
    samplefile::Menu menu = threeProducts(samplefile::headerWithAllSwitches());
    const QJsonObject values{
        {u"upperTemp"_s, 210},           {u"lowerTemp"_s, 190},         {u"holdingTime"_s, 3600},
        {u"warningTime"_s, 60},          {u"resetTime"_s, 30},          {u"fanSpeed"_s, 700},
        {u"lidType"_s, u"Vented"_s},     {u"bottomType"_s, u"False"_s}, {u"zoneSplits"_s, u"1/1"_s},
        {u"timerColor"_s, u"#ff0000"_s}, {u"productLocked"_s, true}};
    menu.products[1] = samplefile::product(4, u"Chili"_s, values);
    OpenEditor editor(menu);
    ui::clickRow(editor.products(), 1);
    ModalAnswers answers;
    answers.expect<ProductEdit>([](ProductEdit &dialog) { ui::click(dialog, "btnSave"); });
    ui::click(*editor, "btnDuplicateProduct");
    QJsonObject expected = samplefile::product(5, u"Chili"_s, values);
    expected.insert(u"productLocked"_s, false);
    const QJsonArray products = savedProducts(editor);
    QCOMPARE(products.last().toObject(), expected);
    QCOMPARE(products.at(1), menu.products.at(1));
    QCOMPARE(editor.products().currentRow(), 3);
    QCOMPARE(editor.productDetail("txtProductId").text(), u"5"_s);
}

void TestMenuFileProducts::cancelledDuplicateChangesNothing()
{
    OpenEditor editor(threeProducts());
    const QJsonObject before = editor.saved();
    ui::clickRow(editor.products(), 1);
    ModalAnswers answers;
    answers.expect<ProductEdit>([](ProductEdit &dialog) { ui::click(dialog, "btnCancel"); });
    ui::click(*editor, "btnDuplicateProduct");
    QCOMPARE(editor.saved(), before);
    QCOMPARE(editor.products().currentRow(), 1);
}

void TestMenuFileProducts::deleteAsksAndCleansUp()
{
    OpenEditor editor(threeProducts());
    ui::clickRow(editor.products(), 1);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::deleteQuestion(u"Delete selected product?"_s), QMessageBox::Yes);
    ui::click(*editor, "btnDeleteProduct");
    QCOMPARE(ui::textsOf(editor.products()), (QStringList{u"  1 Bacon"_s, u"  2 Gravy"_s}));
    QCOMPARE(editor.products().currentRow(), -1);
    QVERIFY(editor.products().selectedItems().isEmpty());
    QCOMPARE(enabledButtons(editor), u"A..."_s);
    QCOMPARE(editor.productDetail("txtName").text(), QString());
    const QJsonObject saved = editor.saved();
    QCOMPARE(membersOf(saved, 0), (QList<int>{1, 7}));
    QCOMPARE(membersOf(saved, 1), (QList<int>{7, 1}));
    const QJsonArray groups = saved.value(u"productGroups"_s).toArray();
    QCOMPARE(groups.at(0).toObject().value(u"defaultProd"_s).toInt(-1), 0);
    QCOMPARE(groups.at(1).toObject().value(u"defaultProd"_s).toInt(-1), 1);
    QCOMPARE(samplefile::binsOf(saved, 0), (QList<int>{0, 2, 0, 7}));
    QCOMPARE(samplefile::binsOf(saved, 1), (QList<int>{1, 0, 0, 3}));
}

void TestMenuFileProducts::refusedDeleteChangesNothing_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("No") << false;
    QTest::newRow("Escape") << true;
}

void TestMenuFileProducts::refusedDeleteChangesNothing()
{
    QFETCH(bool, escape);
    OpenEditor editor(threeProducts());
    const QJsonObject before = editor.saved();
    ui::clickRow(editor.products(), 1);
    ModalAnswers answers;
    const ModalAnswers::Box question = ModalAnswers::deleteQuestion(u"Delete selected product?"_s);
    if (escape)
        answers.expectBoxEscaped(question);
    else
        answers.expectBox(question, QMessageBox::No);
    ui::click(*editor, "btnDeleteProduct");
    QCOMPARE(editor.saved(), before);
    QCOMPARE(editor.products().currentRow(), 1);
    QCOMPARE(enabledButtons(editor), u"AEDX"_s);
}

void TestMenuFileProducts::keyboardReachesEverything()
{
    OpenEditor editor(threeProducts());
    editor.products().setFocus();
    QTest::keyClick(&editor.products(), Qt::Key_End);
    QCOMPARE(editor.productDetail("txtName").text(), u"Gravy"_s);
    auto &button = ui::get<QWidget>(*editor, "btnDuplicateProduct");
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Return); // Enter presses nothing in an editor
    QCOMPARE(editor.products().count(), 3);
    ModalAnswers answers;
    answers.expect<ProductEdit>([](ProductEdit &dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
    QTest::keyClick(&button, Qt::Key_Space);
    QCOMPARE(editor.products().count(), 4);
    editor.products().setFocus();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        answers.expect<ProductEdit>([](ProductEdit &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        QTest::keyClick(&editor.products(), key);
        QVERIFY(answers.allAnswered());
    }
}

void TestMenuFileProducts::manyProductsAreShown()
{
    samplefile::Menu menu;
    menu.header = samplefile::headerWithAllSwitches();
    for (int id = 1; id <= 1000; ++id)
        menu.products.append(samplefile::product(id, u"P%1 "_s.arg(id) + QString(id, u'x')));
    OpenEditor editor(menu);
    QCOMPARE(editor.products().count(), 1000);
    ui::clickRow(editor.products(), 999);
    QCOMPARE(editor.productDetail("txtName").text().size(), 6 + 1000);
    QCOMPARE(editor->size(), editor->minimumSize());
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::refusal(u"Cannot add products. Maximum products and groups reached!"_s),
                      QMessageBox::Close);
    ui::click(*editor, "btnAddProduct");
    QCOMPARE(savedProducts(editor), menu.products);
}

void TestMenuFileProducts::oddIdsAreKept()
{
    samplefile::Menu menu = threeProducts();
    menu.products = {samplefile::product(-5, u"Negative"_s), samplefile::product(1, u"One"_s),
                     samplefile::product(1, u"Again"_s), samplefile::product(2147483647, u"Last"_s)};
    menu.header = samplefile::header({{u"prodcutIdEnabled"_s, true}});
    OpenEditor editor(menu);
    ui::clickRow(editor.products(), 0);
    QCOMPARE(editor.productDetail("txtProductId").text(), u"-5"_s);
    ui::clickRow(editor.products(), 3);
    QCOMPARE(editor.productDetail("txtProductId").text(), u"2147483647"_s);
    QCOMPARE(editor->getProductObject(1), editor->getMenuProducts().at(1));
    QCOMPARE(editor->getProductObject(2), editor->getMenuGroups().at(0));
    QVERIFY(!editor->getProductObject(99));
    const QJsonArray products = savedProducts(editor);
    for (qsizetype i = 0; i < products.size(); ++i)
        QCOMPARE(products.at(i).toObject().value(u"productId"_s),
                 menu.products.at(i).toObject().value(u"productId"_s));
}

QTEST_MAIN(TestMenuFileProducts)
#include "tst_menufile_products.moc"
