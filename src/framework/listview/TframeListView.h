#pragma once

#include "FilePrompts.h"
#include "RowOrder.h"
#include "TBitBtn.h"
#include "TListView.h"
#include "TRadioGroup.h"
#include "TSearchPanel.h"

#include <QFrame>
#include <QPointer>
#include <QStringList>

#include <vector>

class QAction;
class QActionGroup;
class QCheckBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QTimer;
class TImageList;

// The list panel that registers and selection dialogs embed: a report-style
// list with a search bar above it and a context menu. It searches and sorts
// the rows the owner loaded (it never reads the database), draws the search
// column bold, hides columns, sums a column, exports the list to a file,
// shows system information and keeps its column widths and search options
// per user, owner form and frame. It asks its owner to reload and tells it
// about selection changes with the events of FrameEvents.h.
class TframeListView : public QFrame
{
    Q_OBJECT

public:
    // What Refresh remembers of each list of the frame.
    struct TListViewSelection
    {
        QString name;        // up to 255 characters
        int selected = 0;    // 0 when no row was selected
        int sortColumn = -1;
    };

    // Search options of rgSearchOptions.
    enum SearchOption { Contains = 0, Equals = 1, StartsWith = 2 };

    // The owner is the form that loads the lists and receives the frame's
    // events; the frame is placed in parent (the owner when null). The name
    // is the frame's component name, part of the settings key.
    explicit TframeListView(QWidget *owner, QWidget *parent = nullptr,
                            const QString &name = QStringLiteral("frameListView"));
    ~TframeListView() override;

    // The column the frames of the process search in and draw bold; -1 for
    // none. One value for all frames: all dialogs are modal, so one frame
    // is in use at a time.
    static int searchColumn();
    static void setSearchColumn(int column);

    QWidget *owner() const { return m_owner; }

    // Owners add the captions of their numeric and date columns here after
    // creating the columns; other columns sort as text.
    QStringList &numericColumns() { return m_numericColumns; }
    QStringList &dateColumns() { return m_dateColumns; }
    SortKind sortKindOf(int column) const;
    SortKind sortKindOf(const QString &caption, int column) const;

    bool ROSortListView() const { return m_sortListView; }
    void setROSortListView(bool on) { m_sortListView = on; }
    int RORefreshTime() const { return m_refreshTime; }
    void setRORefreshTime(int seconds) { m_refreshTime = seconds; }
    bool ROAutoListViewUpdate() const { return m_autoListViewUpdate; }
    // Starts (true) or stops the automatic reload every RORefreshTime
    // seconds; either way the owner reloads at once.
    void setROAutoListViewUpdate(bool on);
    int ROSetUserID() const { return m_userId; }
    // Remembers the user whose settings the frame uses and loads them.
    void setROSetUserID(int userId);

    // Reloads through the owner, keeping each list's selected position and
    // sort, then tells the owner the selection changed.
    void Refresh();
    // Finds the next row whose search column matches the search text.
    void btnSearchClick();
    // Sorts the list by a column as a header click does: the column becomes
    // the sort and the search column and carries the sort mark.
    void sortByColumnClick(int column);
    // Sorts lvMain by its sort column (its tag); a value of the wrong type
    // is reported and leaves the order as it was.
    void sortList();
    void sumColumn();
    void exportToFile();
    void showSystemInformation();
    void toggleSearchPanel();

    // Builds the column menus from lvMain's columns, then loads settings.
    void buildMenus();
    void loadSettings();
    void saveSettings();
    // "<user>/<owner form class>/<frame name>", the group of the settings.
    QString settingsGroup() const;

    // Components, by their documented names.
    TSearchPanel *pnlSearch = nullptr;
    QLabel *Label1;
    QLineEdit *edSearch;
    QPushButton *btnSearch;
    QPushButton *btnOpcje;
    QPushButton *btnUnBold;
    TRadioGroup *rgSearchOptions;
    QAction *acCaseSensitive;   // checked: letter case is ignored
    QAction *acSearchOnKey;
    QCheckBox *cbCaseSensitive;
    QCheckBox *cbSearchOnKey;
    TBitBtn *BitBtn1;   // "Sumuj kolumnę"
    TBitBtn *BitBtn2;   // "Export do pliku"
    TBitBtn *BitBtn3;   // "Informacje systemowe"
    TBitBtn *BitBtn5;   // "&Dodaj", wired by the owner
    TBitBtn *BitBtn4;   // "&Popraw", wired by the owner
    TBitBtn *BitBtn6;   // "&Usuń", wired by the owner
    TBitBtn *BitBtn7;   // "&Odśwież", wired by the owner
    TListView *lvMain;
    TImageList *lvImages;
    QMenu *pmMain;
    FilePrompt SaveDialog1;

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildLayout();
    void fitSearchRow();
    void sortListView(TListView &list);
    void buildPopupMenu();
    void connectSignals();
    void notifyOwner(int type) const;
    void repaintList();
    void markSortColumn(int column);
    void clearSearchColumn();
    void showAllColumns();
    void hideColumn(int column, bool hide);
    bool handleColumnShortcut(int digit);
    void searchKeyUp(int key);
    void selectFirstRow(bool scroll);
    bool rowMatches(int row, int column, const QString &wanted, int option) const;
    QString ownerClassName() const;

    QPointer<QWidget> m_owner;
    QString m_ownerClass;
    QTimer *m_timer;
    QStringList m_numericColumns;
    QStringList m_dateColumns;
    bool m_sortListView = false;
    int m_refreshTime = 0;
    bool m_autoListViewUpdate = false;
    int m_userId = 0;

    QMenu *m_searchColumnMenu;
    QMenu *m_sortMenu;
    QMenu *m_hideMenu;
    QActionGroup *m_searchColumnGroup;
    QActionGroup *m_sortGroup;
    QAction *m_optionContains;
    QAction *m_optionEquals;
    QAction *m_optionStartsWith;
    std::vector<QAction *> m_hideActions;
};
