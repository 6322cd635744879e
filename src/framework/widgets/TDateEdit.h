#pragma once

#include "DateTime.h"

#include <QDateEdit>

// A date field with a four-digit year and a calendar that may also be
// empty: the null date shows as a blank field and reads back as null.
class TDateEdit : public QDateEdit
{
    Q_OBJECT

public:
    explicit TDateEdit(QWidget *parent = nullptr);

    DateTime value() const;
    void setValue(DateTime value);
    bool isEmpty() const;
    void clearDate();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
