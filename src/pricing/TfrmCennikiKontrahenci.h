#pragma once

#include "TPriceListWindow.h"

class TframeListView;

// Shows which clients a price list applies to: for the main price list
// the clients assigned to no group, for a group the clients assigned to
// it. Items carry the client key (ID_KONTRAHENTA). Nothing is changed here.
class TfrmCennikiKontrahenci : public TPriceListWindow
{
    Q_OBJECT

public:
    explicit TfrmCennikiKontrahenci(QWidget *owner);

    TframeListView *frameListView1;

protected:
    void FormCreate() override;
    void LoadLVData() override;
};
