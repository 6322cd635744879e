// What the register's actions do.
#include "TfrmZlecPrzychodzace.h"

#include "DbError.h"
#include "FilePrompts.h"
#include "MessageService.h"
#include "Privileges.h"
#include "RegisterExport.h"
#include "SessionContext.h"
#include "Statement.h"
#include "TZlecenia_przychObj.h"
#include "TframeListView.h"
#include "TfrmAdvancedEdit.h"
#include "TfrmMiasta.h"

#include <QDir>

namespace {

QString exportFileName()
{
#ifdef Q_OS_WIN
    return QStringLiteral("c:\\Zleceniakraj.csv");
#else
    return QDir::home().filePath(QStringLiteral("Zleceniakraj.csv"));
#endif
}

} // namespace

void TfrmZlecPrzychodzace::reloadAndSelect(int orderKey)
{
    LoadLVData();
    frameListView1->lvMain->selectByKey(orderKey);
    UpdateControls();
}

void TfrmZlecPrzychodzace::acDeleteExecute()
{
    TListView *list = frameListView1->lvMain;
    const int row = list->selectedIndex();
    if (row < 0 || !Privileges::require(Privileges::Delete, this))
        return;
    if (!Messages::confirm(QStringLiteral("Usuwanie"),
                           QStringLiteral("Usunąć wybraną pozycję")))
        return;
    try {
        Statement st(*session().Database);
        st.add(QStringLiteral("DELETE FROM ZLECENIA_PRZYCH WHERE ID_ZLECENIA_PRZYCH=:aIDZlecenia"));
        st.bind(QStringLiteral("aIDZlecenia"), list->key(row));
        st.exec();
    } catch (const DbError &) {
        // Another module's record may hold the order; the next reload shows
        // it again, which tells the dispatcher enough.
    }
    list->deleteItem(row);
    UpdateControls();
}

void TfrmZlecPrzychodzace::acUsunLadunekExecute()
{
    const int key = selectedOrder();
    if (key == 0)
        return;
    TZlecenia_przychObj order = TZlecenia_przychObj(*session().Database).SelectById(key);
    if (order.ID_ZLECENIA_PRZYCH == 0)
        return;
    order.IDZLECENIAZBIOR = 0;
    order.Update();
    LoadLVData();
}

void TfrmZlecPrzychodzace::acAdvancedEditExecute()
{
    const int key = selectedOrder();
    if (key == 0)
        return;
    auto edit = TfrmRODefault::create<TfrmAdvancedEdit>(this, key);
    if (edit->showModal() == mrOk)
        reloadAndSelect(key);
}

void TfrmZlecPrzychodzace::Zamknij1Click()
{
    const int key = selectedOrder();
    if (key == 0 || !Privileges::require(Privileges::Edit, this))
        return;
    TZlecenia_przychObj order = TZlecenia_przychObj(*session().Database).SelectById(key);
    if (order.ID_ZLECENIA_PRZYCH != 0) {
        order.ZAMKNIETE = order.ZAMKNIETE == 0 ? 1 : 0;
        order.Update();
    }
    frameListView1->Refresh();
}

void TfrmZlecPrzychodzace::btnCennikiClick()
{
    const FilePrompt prompt{QString(), exportFileName(),
                            QStringLiteral("Pliki CSV|*.csv|Wszystkie pliki|*.*"),
                            QStringLiteral("csv")};
    const QString path = FilePromptService::instance().saveFileName(this, prompt);
    if (path.isEmpty())
        return;
    if (!RegisterExport::write(frameListView1->lvMain->items(), path))
        MessageServices::instance().showMessage(QStringLiteral("Błąd otwarcia pliku (") + path
                                               + u')');
}

void TfrmZlecPrzychodzace::BitBtn6Click()
{
    const auto distances = TfrmRODefault::create<TfrmMiasta>(this);
    distances->showModal();
}
