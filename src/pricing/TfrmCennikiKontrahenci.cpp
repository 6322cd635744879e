#include "TfrmCennikiKontrahenci.h"

#include "PriceListCombo.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "Statement.h"
#include "TBitBtn.h"
#include "TListView.h"
#include "TframeListView.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>

namespace {

QString clientsOf(int group)
{
    if (group == 0)
        return QStringLiteral("select * from kontrahenci where id_kontrahenta not in (select "
                              "IDKONTRAHENT from CENNIKI_KRAJ_KONTRAHENCI)");
    return QStringLiteral("select * from KONTRAHENCI WHERE id_kontrahenta in (select "
                          "IDKONTRAHENT from CENNIKI_KRAJ_KONTRAHENCI WHERE IDGRUPY=")
        + QString::number(group) + u')';
}

} // namespace

TfrmCennikiKontrahenci::TfrmCennikiKontrahenci(QWidget *owner)
    : TPriceListWindow(owner, QStringLiteral("frmCennikiKontrahenci"))
{
    frameListView1 = new TframeListView(this, pnlClient, QStringLiteral("frameListView1"));
    TListView *list = frameListView1->lvMain;
    list->addColumn(QStringLiteral("ID"), 70);
    list->addColumn(QStringLiteral("Nazwa"), 220);
    list->addColumn(QStringLiteral("Adres"), 160);
    list->addColumn(QStringLiteral("Kod"), 60);
    list->addColumn(QStringLiteral("Miejscowość"), 120);
    for (TBitBtn *button : {frameListView1->BitBtn5, frameListView1->BitBtn4,
                            frameListView1->BitBtn6})
        button->hide();
    connect(frameListView1->BitBtn7, &QPushButton::clicked, frameListView1,
            &TframeListView::Refresh);

    auto *layout = new QVBoxLayout(pnlClient);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addLayout(chooserRow());
    layout->addWidget(frameListView1, 1);
    resize(700, 460);
}

void TfrmCennikiKontrahenci::FormCreate()
{
    TPriceListWindow::FormCreate();
    frameListView1->setROSetUserID(session().UserID);
    fillPriceListCombo(cbCennik, session().Database);
    LoadLVData();
    connect(cbCennik, &QComboBox::currentIndexChanged, this,
            &TfrmCennikiKontrahenci::LoadLVData);
}

void TfrmCennikiKontrahenci::LoadLVData()
{
    TListView *list = frameListView1->lvMain;
    list->beginUpdate();
    list->clear();
    if (Connection *database = session().Database) {
        reportFailures(QStringLiteral("Nie można odczytać kontrahentów"), [&] {
            Statement st(*database);
            st.add(clientsOf(selectedPriceList(cbCennik)));
            st.exec();
            const int key = st.columnIndex(QStringLiteral("ID_KONTRAHENTA"));
            const int name = st.columnIndex(QStringLiteral("NAZWA"));
            const int address = st.columnIndex(QStringLiteral("ADRES"));
            const int postcode = st.columnIndex(QStringLiteral("KOD"));
            const int town = st.columnIndex(QStringLiteral("MIEJSCOWOSC"));
            for (; !st.atEnd(); st.next())
                list->addItem(st.string(name),
                              {st.string(address), st.string(postcode), st.string(town)},
                              st.integer(key));
        });
    }
    list->endUpdate();
}
