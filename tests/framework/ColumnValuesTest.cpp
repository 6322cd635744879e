#include "ColumnValues.h"
#include "Format.h"
#include "TListViewModel.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QChar Nbsp = Format::ThousandSeparator;

QString polish(const char *text)
{
    return QString::fromUtf8(text).replace(u'~', Nbsp);
}

} // namespace

TEST(ColumnValues, NumericTest)
{
    EXPECT_TRUE(ColumnValues::isNumeric(polish("1~234,50")));
    EXPECT_FALSE(ColumnValues::isNumeric(QStringLiteral("1.234,50")));
    EXPECT_TRUE(ColumnValues::isNumeric(QStringLiteral("-12.5")));
    EXPECT_FALSE(ColumnValues::isNumeric(QStringLiteral("12-5")));
    EXPECT_FALSE(ColumnValues::isNumeric(QStringLiteral("")));
    EXPECT_FALSE(ColumnValues::isNumeric(QStringLiteral(",")));
    EXPECT_FALSE(ColumnValues::isNumeric(QStringLiteral("12 zł")));
}

TEST(ColumnValues, SummaryOfAColumnWithAndWithoutNumbers)
{
    TListViewModel model;
    model.addColumn(QStringLiteral("Nr"));
    model.addColumn(QStringLiteral("Kwota"));
    for (const QString &amount :
         {polish("1~234,50"), QStringLiteral("1.234,50"), QStringLiteral("10"), QStringLiteral("-"),
          QStringLiteral("brak")})
        model.addRow({QStringLiteral("x"), amount});

    const ColumnValues::Summary summary = ColumnValues::summarize(model, 1);
    EXPECT_EQ(summary.caption(), "Sumowanych pozycji: 2 z 5");
    EXPECT_EQ(summary.text(), polish("Suma kolumny: 1~244,50\n"
                                     "___________________________________________\n"
                                     "Wartość średnia: 622,25\n"
                                     "Wartość minimalna: 10,00\n"
                                     "Wartość maksymalna: 1~234,50\n"
                                     "Wartości nie-numeryczne: 3"));

    const ColumnValues::Summary texts = ColumnValues::summarize(model, 0);
    EXPECT_EQ(texts.caption(), "Sumowanych pozycji: 0 z 5");
    EXPECT_EQ(texts.text(), "Kolumna nie zawierała wartości liczbowych.");
}

TEST(ColumnValues, CsvHasAllCaptionsAndPlainNumbers)
{
    TListViewModel model;
    for (const char *caption : {"Nr", "Miasto", "Kwota"})
        model.addColumn(QString::fromUtf8(caption));
    model.addRow({QStringLiteral("00000001"), QStringLiteral("Kraków"), polish("1~234,50")});
    model.addRow({QStringLiteral("00000002"), polish("ul.~Długa"), QStringLiteral("1.234,50")});
    model.addRow({QStringLiteral("00000003")});

    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("lista.csv"));
    ASSERT_EQ(ColumnValues::writeCsv(model, path), ColumnValues::WriteResult::Written);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(file.readAll()),
              polish("Nr;Miasto;Kwota\r\n"
                     "00000001;Kraków;1234,50\r\n"
                     "00000002;ul.~Długa;1.234,50\r\n"
                     "00000003\r\n"));
}
