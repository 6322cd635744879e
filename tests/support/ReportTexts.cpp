#include "ReportTexts.h"

QStringList ReportTexts::printed(const std::vector<ReportPage> &pages)
{
    QStringList texts;
    for (const ReportPage &page : pages) {
        for (const QString &text : page.texts()) {
            if (!text.isEmpty())
                texts << text;
        }
    }
    return texts;
}

bool ReportTexts::inOrder(const QStringList &texts, const QStringList &expected)
{
    qsizetype from = 0;
    for (const QString &text : expected) {
        from = texts.indexOf(text, from);
        if (from < 0)
            return false;
        ++from;
    }
    return true;
}
