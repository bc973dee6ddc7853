// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QComboBox>
#include <QLineEdit>

#include "holding/fields.h"
#include "tests/gui/editproduct.h"
#include "tests/support/recordfields.h"
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
    QStringList unchanged;
    for (auto field = before.begin(); field != before.end(); ++field) {
        if (after.value(field.key()) == field.value())
            unchanged.append(field.key());
    }
    QCOMPARE(unchanged, (QStringList{u"defaultIndex"_s, u"isGroup"_s, u"productId"_s, u"productList"_s,
                                     u"productLocked"_s, u"productShortName"_s}));
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
