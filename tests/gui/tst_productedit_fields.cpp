// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QComboBox>
#include <QLineEdit>

#include "holding/fields.h"
#include "tests/gui/editproduct.h"
#include "tests/support/languages.h"
#include "tests/support/recordfields.h"
#include "tests/support/textlists.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace productedit;

/// A field that is stored can be edited and is shown: none is forgotten in the dialog or in the details.
class TestProductEditFields : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void everyFieldCanBeChanged();
    void everyFieldStaysWhatItWas();
    void everyDetailHasItsLabels();
};

namespace {

/// Changes what each input of the dialog shows.
void changeEverything(ProductEdit &dialog)
{
    const auto boxes = dialog.findChildren<QSpinBox *>();
    for (QSpinBox *box : boxes)
        box->setValue(box->value() < box->maximum() ? box->value() + 1 : box->minimum());
    const auto times = dialog.findChildren<QTimeEdit *>();
    for (QTimeEdit *edit : times)
        edit->setTime(edit->time().addSecs(1));
    const auto choices = dialog.findChildren<QComboBox *>();
    for (QComboBox *choice : choices)
        choice->setCurrentIndex((choice->currentIndex() + 1) % choice->count());
    ui::type(dialog, "txtName", u"Another name"_s);
    ui::type(dialog, "numProductId", u"77"_s); // no other product's
}

} // namespace

void TestProductEditFields::everyFieldCanBeChanged()
{
    // A colour that is none of the palette is replaced without being touched.
    OpenEditor editor(menuWith(samplefile::headerWithAllSwitches(), {{u"timerColor"_s, u"#123456"_s}}));
    ProductInfo *product = editor->getMenuProducts().constFirst();
    const recordfields::Values before = recordfields::valuesOf(*product);
    edit(editor, [](ProductEdit &dialog, ModalAnswers &) {
        changeEverything(dialog);
        save(dialog);
    });
    const recordfields::Values after = recordfields::valuesOf(*product);
    QStringList unchanged = before.keys();
    for (const QString &changed : recordfields::differences(before, after))
        unchanged.removeOne(changed);
    const QStringList others{u"defaultIndex"_s, u"isGroup"_s,       u"productId"_s,
                             u"productList"_s,  u"productLocked"_s, u"productShortName"_s};
    QCOMPARE(differenceOf(unchanged, others), QString());
}

namespace {

/// A value in each field that the dialog can show and does not show by itself. A field that has no line here
/// holds a number above 1000 or a text.
void fillWithinLimits(ProductInfo &product)
{
    recordfields::fill(product);
    product.set_productId(77);
    product.set_isGroup(false);
    product.set_productName(inEveryLanguage(u"Ham & Eggs"_s));
    product.set_upperTemp(215);
    product.set_lowerTemp(187);
    product.set_holdTime(4321);
    product.set_warningTime(1234);
    product.set_resetTime(567);
    product.set_fanSpeed(83);
    product.set_zoneSplits(u"2/3"_s);
    product.set_lidType(u"Vented"_s);
    product.set_bottomType(u"Normal"_s);
    product.set_timerColor(u"#402100"_s);
}

} // namespace

void TestProductEditFields::everyFieldStaysWhatItWas()
{
    OpenEditor editor(menuWith(samplefile::headerWithAllSwitches({{u"cabinetModel"_s, u"KTR33"_s}})));
    ProductInfo *product = editor->getMenuProducts().constFirst();
    fillWithinLimits(*product);
    const recordfields::Values before = recordfields::valuesOf(*product);
    edit(editor, [](ProductEdit &dialog, ModalAnswers &) { save(dialog); });
    const QStringList changed = recordfields::differences(before, recordfields::valuesOf(*product));
    QCOMPARE(changed.join(u", "_s), QString());
}

void TestProductEditFields::everyDetailHasItsLabels()
{
    OpenEditor editor(menuWith(samplefile::headerWithAllSwitches()));
    ui::clickRow(editor.products(), 0);
    const ProductInfo &product = *editor->getMenuProducts().constFirst();
    for (const holding::ProductField &field : holding::productFields()) {
        const holding::FieldDetail &detail = field.detail;
        if (detail.name.isEmpty())
            continue;
        const QByteArray name(detail.name.data(), detail.name.size());
        QVERIFY2(!editor.productDetail(QByteArray("lbl" + name).constData()).text().isEmpty(),
                 name.constData());
        QVERIFY2(editor.productDetail(QByteArray("lbl" + name).constData()).isVisible(), name.constData());
        QVERIFY2(editor.productDetail(QByteArray("txt" + name).constData()).isVisible(), name.constData());
        if (detail.text)
            QCOMPARE(editor.productDetail(QByteArray("txt" + name).constData()).text(),
                     detail.text(product, editor->configuration()));
    }
}

QTEST_MAIN(TestProductEditFields)
#include "tst_productedit_fields.moc"
