#pragma once

#include "TfrmRODefault.h"

class QComboBox;
class QLabel;
class QPushButton;
class TframeListView;

// The register of distances between cities: the routes that start in the
// city chosen in the header, with their distances to correct or delete.
class TfrmMiasta : public TfrmRODefault
{
    Q_OBJECT

public:
    explicit TfrmMiasta(QWidget *owner);

    // The key of the chosen city; 0 for "---".
    int selectedCity() const;

    void btnOdswiezClick();
    void editRoute();
    void deleteRoute();

    QLabel *lblMiasta;
    QComboBox *CBMiasta;
    QPushButton *btnOdswiez;
    TframeListView *frameListView1;

protected:
    void FormCreate() override;
    void LoadLVData() override;

private:
    void fillCities();
};
