#include "RowOrder.h"
#include "TListViewModel.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

// One column of values, each row keyed by its load position.
std::unique_ptr<TListViewModel> modelOf(const QStringList &values)
{
    auto model = std::make_unique<TListViewModel>();
    model->addColumn(QStringLiteral("A"));
    for (int i = 0; i < values.size(); ++i)
        model->addRow({values[i]}, i);
    return model;
}

QStringList sortedValues(const QStringList &values, SortKind kind)
{
    const auto model = modelOf(values);
    model->reorder(sortedRows(*model, 0, kind));
    QStringList result;
    for (int row = 0; row < model->rows(); ++row)
        result << model->text(row, 0);
    return result;
}

} // namespace

TEST(RowOrder, NumbersAndDatesByValueTextInPolishOrderIgnoringCaseEmptyValuesFirst)
{
    EXPECT_EQ(sortedValues({"10", "9", ""}, SortKind::Number), QStringList({"", "9", "10"}));
    EXPECT_EQ(sortedValues({"1 000,50", "-3", "", "2,5"}, SortKind::Number),
              QStringList({"", "-3", "2,5", "1 000,50"}));
    EXPECT_EQ(
        sortedValues({"2024-03-01", "", "2023-12-31 18:00", "2023-12-31 08:00"}, SortKind::Date),
        QStringList({"", "2023-12-31 08:00", "2023-12-31 18:00", "2024-03-01"}));
    EXPECT_EQ(sortedValues({"Zabrze", "Łódź", "lublin", "Ąb", "ab", "Łomża"}, SortKind::Text),
              QStringList({"ab", "Ąb", "lublin", "Łomża", "Łódź", "Zabrze"}));
}

TEST(RowOrder, EqualValuesKeepTheirLoadOrder)
{
    const auto model = modelOf({"b", "A", "B", "a"});
    model->reorder(sortedRows(*model, 0, SortKind::Text));
    EXPECT_EQ(model->key(0), 1);
    EXPECT_EQ(model->key(1), 3);
    EXPECT_EQ(model->key(2), 0);
    EXPECT_EQ(model->key(3), 2);
}

TEST(RowOrder, CurrencyRoundsTheUpperValueBeforeComparing)
{
    // 10.4 rounds to 10, which is not greater than 10.2: the rows stay.
    EXPECT_EQ(sortedValues({"10,4", "10,2"}, SortKind::Currency), QStringList({"10,4", "10,2"}));
    EXPECT_EQ(sortedValues({"10,4", "10,2"}, SortKind::Number), QStringList({"10,2", "10,4"}));
    EXPECT_EQ(sortedValues({"12", "3,5", ""}, SortKind::Currency), QStringList({"", "3,5", "12"}));
}

TEST(RowOrder, AValueOfTheWrongKindStopsTheSort)
{
    const auto model = modelOf({"3", "abc", "1"});
    try {
        sortedRows(*model, 0, SortKind::Number);
        FAIL() << "no conversion error";
    } catch (const SortConversionError &error) {
        EXPECT_EQ(error.message(), "'abc' nie jest poprawną wartością liczbową.");
    }
    EXPECT_THROW(sortedRows(*modelOf({"2024-01-01", "jutro"}), 0, SortKind::Date),
                 SortConversionError);
}

TEST(RowOrder, SelectionFollowsItsRowThroughASort)
{
    const auto model = modelOf({"c", "a", "b"});
    const QPersistentModelIndex selected = model->index(0, 0);
    model->reorder(sortedRows(*model, 0, SortKind::Text));
    EXPECT_EQ(selected.row(), 2);
    EXPECT_EQ(model->text(selected.row(), 0), "c");
}
