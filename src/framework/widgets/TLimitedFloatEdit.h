#pragma once

#include "TNumberEdit.h"

// A number field with fractions whose display is built from its decimals,
// an optional thousands grouping and an optional unit after the number,
// and which also limits how many characters can be typed into it.
class TLimitedFloatEdit : public TNumberEdit
{
    Q_OBJECT

public:
    explicit TLimitedFloatEdit(QWidget *parent = nullptr);

    void setDecimals(int decimals);
    void setGroupSeparatorShown(bool shown);
    void setSuffix(const QString &suffix);

protected:
    explicit TLimitedFloatEdit(int decimals, QWidget *parent);

private:
    void buildPattern(int decimals);

    bool m_grouped = false;
    QString m_suffix;
};
