#pragma once

#include <QString>

#include <optional>

class TDateEdit;

// Why the period typed into two date fields cannot be taken, with the field
// to go back to: a field that holds no date, or a period that ends before
// it begins (said in the dialog's own words).
struct PeriodProblem
{
    QString text;
    TDateEdit *field = nullptr;

    static std::optional<PeriodProblem> of(TDateEdit *from, TDateEdit *to,
                                           const QString &reversedText);
};
