// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

/// A dialog that can find out, while it is being built, that it cannot be used.
///
/// Construction then goes on and exec() returns Rejected without showing anything: QDialog's own would show
/// a dialog that was closed before it ran.
class RefusableDialog : public QDialog
{
    Q_OBJECT

public:
    using QDialog::QDialog;

    int exec() override;

protected:
    /// Tells the user why and closes the dialog as rejected.
    void refuse(const QString &message);

private:
    bool m_refused = false;
};
