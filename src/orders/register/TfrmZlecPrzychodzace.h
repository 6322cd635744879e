#pragma once

#include "OrderListQuery.h"
#include "TfrmRODefault.h"

class QAction;
class QComboBox;
class QLabel;
class QMenu;
class TBitBtn;
class TDateEdit;
class TRadioGroup;
class TframeListView;

// The module's main window: the register of incoming orders. It lists the
// orders of VZLECENIA_PRZYCH loaded within the date range (and every
// undated one), with their revenue and its total, and from here the
// dispatcher adds, edits, copies, deletes, closes and reopens orders,
// inserts the template orders, opens an order's goods and places and the
// distance register, and exports the list. Changing a filter reloads
// nothing until the user refreshes.
class TfrmZlecPrzychodzace : public TfrmRODefault
{
    Q_OBJECT

public:
    // The row image of a closed order in the frame's image list.
    static constexpr int ClosedOrderImage = 16;

    explicit TfrmZlecPrzychodzace(QWidget *owner = nullptr);
    ~TfrmZlecPrzychodzace() override;

    // The key of the selected order, 0 when no row is selected.
    int selectedOrder() const;
    // What the filter controls say now.
    OrderListFilter filter() const;
    // Read from the configuration at creation: whether road cards may be
    // made from orders.
    bool KartaZeZlecen() const { return m_kartaZeZlecen; }
    // The sum of the revenue column over the listed rows.
    double total() const { return m_total; }

    // Filters.
    TDateEdit *deOd;
    TDateEdit *deDo;
    TRadioGroup *RadioGroup1;   // "Rodzaj zlecenia"
    TRadioGroup *RadioGroup2;   // "Umiejscowienie", hidden
    QLabel *Label4;             // "Dysponent:", hidden
    QComboBox *cbWspolnik;      // hidden; item data: ID_FILTRY_przych

    TframeListView *frameListView1;

    // The second row of buttons.
    QWidget *pnlBttns;
    TBitBtn *btnPowiel;
    TBitBtn *BitBtn5;     // "Wstaw z wzorca", hidden
    TBitBtn *BitBtn12;    // "Towary"
    TBitBtn *BitBtn13;    // "M.załadunku"
    TBitBtn *BitBtn4;     // "M.Rozladunku"
    TBitBtn *BitBtn2;     // "&Fakturuj"
    TBitBtn *BitBtn11;    // "Usuń fakturę": enabled by Ctrl+Shift+E
    TBitBtn *BitBtn10;    // "Drukuj fakturę"
    TBitBtn *BitBtn1;     // "D&rukuj zlecenie"
    TBitBtn *BitBtn6;     // "&Kilometry"
    TBitBtn *btnCenniki;  // "-> *.CSV"
    TBitBtn *btnKarta;         // "&Generuj Karte"
    TBitBtn *BtnFakturaObca;   // "Faktura O&bca"
    TBitBtn *btnZest;          // "Zestawienie": pops up pmZestaw

    QLabel *lblKwota;

    QAction *acDodaj;
    QAction *acPopraw;         // also a double click on a row
    QAction *acDelete;
    QAction *acShowDelete;
    QAction *acPowiel;
    QAction *acWzor;
    QAction *acTowary;
    QAction *acAddLadunki;     // the goods again, without a control
    QAction *acMiejsceZaladunku;
    QAction *acMiejscaRozladunku;
    QAction *acUsunLadunek;
    QAction *acAdvancedEdit;   // Ctrl+A
    QAction *Zamknij1;         // popup "Zamknij\Otwórz"
    QAction *acFaktura;        // invoicing, of the selected order's client
    QAction *acPrintFra;       // the selected order's invoice and attachment
    QAction *acDrukuj;         // the selected order's transport order
    QAction *acKarta;          // the selected order onto a road card
    QAction *acZestawienie;

    // The statements, in the order dispatchers know them; the carriers'
    // invoice lists among them.
    QMenu *pmZestaw;

protected:
    void FormCreate() override;
    void LoadLVData() override;
    void UpdateControls() override;

private:
    void buildFilters(QWidget *parent);
    void buildButtons(QWidget *parent);
    void buildFooter();
    void buildActions();
    void extendPopupMenu();
    void fillPartnerList();

    void acDodajExecute();
    void acPoprawExecute();
    void acDeleteExecute();
    void acPowielExecute();
    void acWzorExecute();
    void acTowaryExecute();
    // The loading (1) or unloading (2) place of the selected order, made
    // empty first when the order has none.
    void openPlace(int type);
    void acUsunLadunekExecute();
    void acAdvancedEditExecute();
    void Zamknij1Click();
    void btnCennikiClick();
    void acFakturaExecute();
    void BitBtn11Click();
    void acPrintFraExecute();
    void acDrukujExecute();
    void BitBtn6Click();
    void buildStatementsMenu();
    void rateDifferences();
    void acKartaExecute();
    void BtnFakturaObcaClick();
    void acZestawienieExecute();
    // The carrier of the selected order, 0 without a selection.
    int selectedCarrier() const;
    int selectedClient() const;

    // The order editor, modally; returns its modal result.
    int runEditor(int orderKey, int mode);
    // Reloads the list and selects the order, scrolled into view.
    void reloadAndSelect(int orderKey);

    bool m_kartaZeZlecen = false;
    double m_total = 0.0;
};
