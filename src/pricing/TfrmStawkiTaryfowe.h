#pragma once

#include "TTaryfyprzewoznikaObj.h"
#include "TfrmRODefault.h"

#include <map>
#include <optional>

class QAction;
class QComboBox;
class QLabel;
class TframeListView;

// The register of tariff rates, carriers' or own, which also serves the
// order editor as its tariff picker: "&Wybierz" on a selected tariff ends
// with OK and selectedTariff() then holds the chosen record.
class TfrmStawkiTaryfowe : public TfrmRODefault
{
    Q_OBJECT

public:
    // currentTariffId: the caller's tariff, selected when shown (0: none).
    // kindIndex: the kind shown first (0 carriers', 1 own).
    TfrmStawkiTaryfowe(QWidget *owner, int currentTariffId, int kindIndex);

    int currentTariffId() const { return m_currentTariffId; }
    bool hasSelectedTariff() const { return m_selected.has_value(); }
    // The tariff chosen with "&Wybierz", all its columns; only after OK
    // (throws std::logic_error otherwise).
    const TTaryfyprzewoznikaObj &selectedTariff() const;

    void acDodajExecute();
    void acPoprawExecute();
    void acUsunExecute();

    QLabel *lblFilter;
    QComboBox *cbFilter;
    TframeListView *frameListView1;
    QAction *acDodaj;
    QAction *acPopraw;
    QAction *acUsun;

protected:
    void FormCreate() override;
    void LoadLVData() override;
    void UpdateControls() override;

private:
    void btnOkClick();
    const TTaryfyprzewoznikaObj *recordAt(int row) const;
    void removeRow(int row);

    int m_currentTariffId;
    int m_kindIndex;
    // The records the list shows, by key; refilled with the list.
    std::map<int, TTaryfyprzewoznikaObj> m_records;
    std::optional<TTaryfyprzewoznikaObj> m_selected;
};
