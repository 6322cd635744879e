#include "PackedTexts.h"
#include "RowTexts.h"
#include "TListViewModel.h"

#include <gtest/gtest.h>

TEST(PackedTexts, KeepsEveryCellEmptyAndLongOnesIncluded)
{
    // Past 65,535 characters the cell ends no longer fit one character.
    const QString longCell(70000, u'ł');
    for (const QStringList &cells :
         {QStringList{}, QStringList{QString()}, QStringList{"a", "", "Łódź", ""},
          QStringList{"x", longCell, "ż"}}) {
        const PackedTexts packed(cells);
        EXPECT_EQ(packed.count(), cells.size());
        EXPECT_EQ(packed.toList(), cells);
        EXPECT_TRUE(packed.cell(-1).isEmpty());
        EXPECT_TRUE(packed.cell(int(cells.size())).isEmpty());
    }
}

TEST(PackedTexts, ARowBuiltInOneBufferListsAsItsTexts)
{
    TListViewModel model;
    model.addColumn(QStringLiteral("Numer"));
    model.addColumn(QStringLiteral("Trasa"));
    RowTexts texts;
    for (int row = 0; row < 2; ++row) {
        texts.clear();
        texts.add(QString::number(row));
        texts.text() += QStringLiteral("Gdańsk-");
        texts.text() += QStringLiteral("Kraków");
        texts.endCell();
        texts.add(QString());
        model.addRow(texts, 10 + row);
    }
    EXPECT_EQ(model.texts(1), (QStringList{"1", "Gdańsk-Kraków", ""}));
    EXPECT_EQ(model.cells(0), 3);
    EXPECT_EQ(model.key(1), 11);
    // A sub-item the row lacks reads empty; setting it adds it.
    EXPECT_EQ(model.text(0, 5), QString());
    model.setText(0, 4, QStringLiteral("ź"));
    EXPECT_EQ(model.texts(0), (QStringList{"0", "Gdańsk-Kraków", "", "", "ź"}));
    EXPECT_EQ(model.textView(1, 1), u"Gdańsk-Kraków");
    // A row without texts still has its caption.
    texts.clear();
    model.addRow(texts);
    EXPECT_EQ(model.cells(2), 1);
}
