#pragma once

#include "TPriceListWindow.h"

class QLabel;
class QTableWidget;

// The grid of a price list's amounts: kilometre ranges down, kilogram
// ranges across. Double-clicking a cell, or Enter on it, edits its amount.
class TfrmCenniki : public TPriceListWindow
{
    Q_OBJECT

public:
    explicit TfrmCenniki(QWidget *owner);

    // The string grid's counts and texts, the fixed row and column included
    // (column 0 holds the kilometre ranges, row 0 the kilogram ranges).
    int RowCount() const;
    int ColCount() const;
    QString Cells(int column, int row) const;

    // Fills the cells of the selected price list.
    void FillCells();
    // Edits the selected cell.
    void sgCennikDblClick();

    QLabel *lblKilogramy;
    QLabel *imgKilometry;
    QTableWidget *sgCennik;

protected:
    void FormCreate() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildGrid();
    int rangeKey(int column, int row) const;
};
