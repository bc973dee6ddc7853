// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QList>
#include <QListWidget>
#include <QStringList>
#include <QTabWidget>

#include "tests/gui/pseudotranslation.h"
#include "tests/support/program.h"
#include "tests/support/uidriver.h"

class Configuration;
class ProductEdit;

/// A person at work, who looks at every window and box that comes up.
class Work
{
public:
    Work(bool translated, const QStringList &names)
        : m_translated(translated)
        , m_names(names)
    {
        look(m_program.window());
    }

    /// The files that were saved.
    QList<QByteArray> run();

private:
    void look(QWidget &window) const
    {
        if (m_translated)
            checkTranslated(window, m_names);
    }
    void expectBox(QMessageBox::StandardButton press);
    void expectFile(const QString &path);
    template <typename Dialog>
    void expectDialog(std::function<void(Dialog &)> act);

    void makeMenu();
    void configure(Configuration &dialog);
    void addProduct();
    void enterWrongly(ProductEdit &dialog);
    void addGroup();
    void saveNew();
    void openSample();
    void editProduct(int row);
    void editGroup();
    void fillBins();
    void clearBins();
    void manageDayparts();
    void deleteEntries(const char *select, const char *remove, const char *list);
    void changeModel();
    void fillUp();
    void leave();

    [[nodiscard]] QWidget &editor();
    [[nodiscard]] QListWidget &list(const char *name) { return ui::get<QListWidget>(editor(), name); }
    void showTab(int index) { ui::get<QTabWidget>(editor(), "tabWidget").setCurrentIndex(index); }

    bool m_translated;
    QStringList m_names;
    Program m_program;
};

template <typename Dialog>
void Work::expectDialog(std::function<void(Dialog &)> act)
{
    m_program.answers().expect<Dialog>([this, act = std::move(act)](Dialog &dialog) {
        look(dialog);
        act(dialog);
    });
}
