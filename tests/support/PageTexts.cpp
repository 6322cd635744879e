#include "PageTexts.h"

QStringList PageTexts::printed(const std::vector<ReportPage> &pages)
{
    QStringList texts;
    for (const ReportPage &page : pages) {
        for (const QString &text : page.texts()) {
            if (!text.isEmpty() && !text.startsWith(QStringLiteral("....")))
                texts << text;
        }
    }
    return texts;
}

bool PageTexts::inOrder(const QStringList &texts, const QStringList &expected)
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
