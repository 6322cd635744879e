#pragma once

#include "TTowaryObj.h"
#include "TfrmRODefault.h"

#include <vector>

class QAction;
class TframeListView;

// The goods of one order: a list with adding, correcting and deleting.
// Created with the order's key and shown modally; it closes with "&Zamknij".
// Deleting asks nothing: goods are cheap to type again and the dispatcher
// removes them in bulk.
class TfrmTowaryNaZleceniu : public TfrmRODefault
{
    Q_OBJECT

public:
    TfrmTowaryNaZleceniu(QWidget *owner, int orderKey);

    int orderKey() const { return m_orderKey; }
    // The rows shown, in list order; the item keys are their ID_TOWARU.
    const std::vector<TTowaryObj> &goods() const { return m_goods; }

    TframeListView *frameListView1;
    QAction *acAdd;
    QAction *acPopraw;
    QAction *acDelete;

protected:
    void FormCreate() override;
    void LoadLVData() override;
    void UpdateControls() override;

private:
    void acAddExecute();
    void acPoprawExecute();
    void acDeleteExecute();
    const TTowaryObj *selectedGoods() const;
    void editGoods(const TTowaryObj &goods, int mode);

    int m_orderKey;
    std::vector<TTowaryObj> m_goods;
};
