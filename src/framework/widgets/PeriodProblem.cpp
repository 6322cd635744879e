#include "PeriodProblem.h"

#include "TDateEdit.h"

std::optional<PeriodProblem> PeriodProblem::of(TDateEdit *from, TDateEdit *to,
                                               const QString &reversedText)
{
    for (TDateEdit *date : {from, to}) {
        date->interpretText();
        if (!date->hasAcceptableInput() || date->isEmpty())
            return PeriodProblem{QStringLiteral("Podaj datę w postaci rrrr-mm-dd."), date};
    }
    if (from->date() > to->date())
        return PeriodProblem{reversedText, from};
    return std::nullopt;
}
