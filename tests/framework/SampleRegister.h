#pragma once

#include "TfrmRODefault.h"

#include <QStringList>

#include <vector>

class TframeListView;

// A register as later forms build one: a list frame whose rows the form
// loads in LoadLVData. Counts the frame's requests.
class TfrmSampleRegister : public TfrmRODefault
{
    Q_OBJECT

public:
    // Each row: caption first, then sub-items; the key is 100 + load position.
    TfrmSampleRegister(const QStringList &captions, std::vector<QStringList> rows, int userId = 7);

    TframeListView *frame;
    std::vector<QStringList> rows;
    int loads = 0;
    int updates = 0;

protected:
    void LoadLVData() override;
    void UpdateControls() override { ++updates; }
};
