// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QString>
#include <QStringList>

/// One entry of a menu: a product, or in the holding-cabinet line a group of products.
///
/// Temperatures are whole °F whatever the menu's unit, times whole seconds, the fan speed revolutions per
/// minute. A record validates nothing: the dialogs and readers that fill it do. Editors own their records
/// through their lists and give them no parent.
///
/// - `productId`: what bins and groups refer to; a group's own id. Which number means "none" is the line's.
/// - `productName`: one name a menu language in the order of `nameLanguages`, the first one is shown.
/// - `productShortName`: Timer Bar line only.
/// - `zoneSplits`: the share of a zone that the entry takes, such as "1/2".
/// - `timerColor`: "#" and six lower-case hexadecimal digits; "#fffffd" is no colour.
/// - `productList`, `defaultIndex`: groups only: the members' ids in order and the default member's
///   0-based position among them. A file may hold any position: check it at every use.
class ProductInfo : public QObject
{
    Q_OBJECT

public:
    explicit ProductInfo(QObject *parent = nullptr);

public slots:
    [[nodiscard]] int get_productId() const;
    void set_productId(int value);
    [[nodiscard]] bool get_isGroup() const;
    void set_isGroup(bool value);
    [[nodiscard]] bool get_productLocked() const;
    void set_productLocked(bool value);
    [[nodiscard]] QStringList get_productName() const;
    void set_productName(const QStringList &value);
    [[nodiscard]] QString get_productShortName() const;
    void set_productShortName(const QString &value);
    [[nodiscard]] int get_upperTemp() const;
    void set_upperTemp(int value);
    [[nodiscard]] int get_lowerTemp() const;
    void set_lowerTemp(int value);
    [[nodiscard]] int get_holdTime() const;
    void set_holdTime(int value);
    [[nodiscard]] int get_warningTime() const;
    void set_warningTime(int value);
    [[nodiscard]] QString get_zoneSplits() const;
    void set_zoneSplits(const QString &value);
    [[nodiscard]] QString get_lidType() const;
    void set_lidType(const QString &value);
    [[nodiscard]] QString get_bottomType() const;
    void set_bottomType(const QString &value);
    [[nodiscard]] int get_fanSpeed() const;
    void set_fanSpeed(int value);
    [[nodiscard]] int get_resetTime() const;
    void set_resetTime(int value);
    [[nodiscard]] QString get_timerColor() const;
    void set_timerColor(const QString &value);
    [[nodiscard]] QList<int> get_productList() const;
    void set_productList(const QList<int> &value);
    [[nodiscard]] int get_defaultIndex() const;
    void set_defaultIndex(int value);

private:
    int m_productId = 0;
    bool m_isGroup = false;
    bool m_productLocked = false;
    QStringList m_productName = {QString()};
    QString m_productShortName;
    int m_upperTemp = 0;
    int m_lowerTemp = 0;
    int m_holdTime = 0;
    int m_warningTime = 0;
    QString m_zoneSplits;
    QString m_lidType;
    QString m_bottomType;
    int m_fanSpeed = 0;
    int m_resetTime = 0;
    QString m_timerColor = QStringLiteral("#fffffd");
    QList<int> m_productList;
    int m_defaultIndex = 0;
};

Q_DECLARE_METATYPE(ProductInfo)
