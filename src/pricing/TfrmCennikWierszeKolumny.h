#pragma once

#include "PriceRanges.h"
#include "TfrmRODefault.h"

#include <initializer_list>

class QPushButton;
class QTabWidget;
class TListView;

// The editor of the price lists' kilometre ranges, kilogram ranges and
// groups, one page each. Ranges and groups used by any cell stay.
class TfrmCennikWierszeKolumny : public TfrmRODefault
{
    Q_OBJECT

public:
    explicit TfrmCennikWierszeKolumny(QWidget *owner);

    void addRange(RangeAxis axis);
    void editRange(RangeAxis axis);
    void deleteRange(RangeAxis axis);
    void addGroup();
    void editGroup();
    void deleteGroup();

    TListView *rangeList(RangeAxis axis) const;

    QTabWidget *PageControl1;
    QWidget *tsKilometry;
    QWidget *tsKilogramy;
    QWidget *tsGrupy;
    TListView *lvWiersze;
    TListView *lvKolumny;
    TListView *lvGrupy;
    QPushButton *btnDodajWiersz;
    QPushButton *btnPoprawWiersz;
    QPushButton *btnUsunWiersz;
    QPushButton *btnDodajKolumne;
    QPushButton *btnPoprawKolumne;
    QPushButton *btnUsunKolumne;
    QPushButton *btnDodajGrupe;
    QPushButton *btnPoprawGrupe;
    QPushButton *btnUsunGrupe;

protected:
    void FormCreate() override;
    void LoadLVData() override;

private:
    struct PageButton
    {
        QString caption;
        QString name;
        QPushButton **button;
    };
    QWidget *buildPage(const QString &title, const QString &name, TListView *&list,
                       const QStringList &columns, std::initializer_list<PageButton> buttons);
    void fillRanges(RangeAxis axis);
    void fillGroups();
    static void showKey(TListView *list, int key);
};
