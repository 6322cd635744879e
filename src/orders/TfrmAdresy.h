#pragma once

#include "TMiejsca_zlecObj.h"
#include "TfrmRODefault.h"

#include <array>

class QLabel;
class QLineEdit;

// The loading (ID_ZRP 1) or unloading (2) place of an order: eighteen
// numbered addresses of one MIEJSCA_ZLEC record. Created with the record,
// which must exist already (its key is updated), and shown modally. OK (1)
// writes the addresses back; "&Powrót" (2) leaves without saving. Leaving
// the first name looks it up among the addresses of the order's client and
// fills the first row from a match.
class TfrmAdresy : public TfrmRODefault
{
    Q_OBJECT

public:
    static constexpr int RowCount = TMiejsca_zlecObj::SlotCount;
    static constexpr int NameLength = 150;
    static constexpr int StreetLength = 200;
    static constexpr int PostcodeLength = 16;
    static constexpr int TownLength = 40;

    TfrmAdresy(QWidget *owner, const TMiejsca_zlecObj &place);

    const TMiejsca_zlecObj &place() const { return m_place; }
    // The client whose earlier addresses the first row is looked up among.
    int clientKey() const { return m_clientKey; }

    // Row n of the dialog is index n - 1.
    std::array<QLabel *, RowCount> lblNumer;
    std::array<QLineEdit *, RowCount> edNazwa;
    std::array<QLineEdit *, RowCount> edUlica;
    std::array<QLineEdit *, RowCount> edKod;
    std::array<QLineEdit *, RowCount> edMiejscowosc;

protected:
    void FormCreate() override;

private:
    void buildRows();
    void showSlot(int index, const TMiejsca_zlecObj::Slot &slot);
    void lookUpFirstName();
    void btnOkClick();

    TMiejsca_zlecObj m_place;
    std::array<int, RowCount> m_countries{};
    int m_clientKey = 0;
};
