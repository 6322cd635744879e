#include "Format.h"
#include "ShotBook.h"
#include "Shots.h"
#include "TframeListView.h"
#include "TfrmRODefault.h"
#include "TfrmWaitPlease.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>

namespace {

// A register of incoming orders filled with made-up rows, as the real one
// will look.
class DemoOrderRegister : public TfrmRODefault
{
public:
    DemoOrderRegister()
    {
        setWindowTitle(QStringLiteral("Zlecenia przychodzące"));
        lblHeader->setText(QStringLiteral("Zlecenia przychodzące"));
        lblHeaderDescription->setText(
            QStringLiteral("Lista zleceń z okresu miesiąca przed i po dniu dzisiejszym."));
        frame = new TframeListView(this, pnlClient, QStringLiteral("frameListView1"));
        auto *layout = new QVBoxLayout(pnlClient);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(frame);
        const struct
        {
            const char *caption;
            int width;
        } columns[] = {{"Numer", 80}, {"Data", 85}, {"Kontrahent", 170}, {"Skąd", 100},
                       {"Dokąd", 100}, {"Przewoźnik", 150}, {"Kwota", 90}, {"Km", 60}};
        for (const auto &column : columns)
            frame->lvMain->addColumn(QString::fromUtf8(column.caption), column.width);
        frame->numericColumns() << QStringLiteral("Kwota") << QStringLiteral("Km");
        frame->dateColumns() << QStringLiteral("Data");
        LoadLVData();
        resize(980, 560);
    }

    TframeListView *frame;

protected:
    void LoadLVData() override
    {
        static const char *const clients[]
            = {"Agromax Sp. z o.o.", "Trans-Bud S.A.",     "Zakład Mięsny Łuków",
               "Hurtownia Żak",      "Mleczarnia Wąchock", "Stal-Pol Kraków"};
        static const char *const cities[] = {"Kraków", "Gdańsk", "Łódź", "Poznań", "Wrocław",
                                             "Szczecin", "Białystok", "Rzeszów"};
        static const char *const carriers[]
            = {"własny", "Spedpol", "Euro-Trans Kielce", "TIR-Serwis"};
        TListView *list = frame->lvMain;
        list->beginUpdate();
        list->clear();
        const QDate first(2024, 5, 6);
        for (int i = 0; i < 24; ++i) {
            const double amount = 850.0 + (i * 7919 % 4000) + (i % 4) * 0.25;
            const int km = 120 + (i * 131 % 600);
            list->addItem(QStringLiteral("%1").arg(1180 + i, 8, 10, QLatin1Char('0')),
                          {Format::date(first.addDays(i / 2)), QString::fromUtf8(clients[i % 6]),
                           QString::fromUtf8(cities[i % 8]),
                           QString::fromUtf8(cities[(i * 3 + 2) % 8]),
                           QString::fromUtf8(carriers[i % 4]), Format::number(amount, u"#,##0.00"),
                           Format::number(km, u"#,##0")},
                          1180 + i);
        }
        list->endUpdate();
    }
};

std::unique_ptr<QWidget> baseForm()
{
    auto form = TfrmRODefault::create<TfrmRODefault>();
    form->lblHeaderDescription->setText(
        QStringLiteral("Opis okna: wspólny nagłówek i stopka formularzy."));
    form->resize(520, 320);
    return form;
}

std::unique_ptr<QWidget> frameWithRows(bool openSearchPanel)
{
    auto form = TfrmRODefault::create<DemoOrderRegister>();
    TframeListView *frame = form->frame;
    frame->sortByColumnClick(2);
    frame->lvMain->setSelectedIndex(3);
    frame->edSearch->setText(QStringLiteral("Trans"));
    if (openSearchPanel)
        frame->toggleSearchPanel();
    return form;
}

std::unique_ptr<QWidget> waitWindow()
{
    auto wait = std::make_unique<TfrmWaitPlease>();
    wait->setMaximum(100);
    wait->ProgressBar1->setValue(40);
    return wait;
}

} // namespace

void addFrameworkShots(ShotBook &book)
{
    book.add(QStringLiteral("frmRODefault"), [](ShotContext &) { return baseForm(); });
    book.add(QStringLiteral("frameListView"), [](ShotContext &) { return frameWithRows(false); });
    book.add(QStringLiteral("frameListView-opcje"),
             [](ShotContext &) { return frameWithRows(true); });
    book.add(QStringLiteral("frmWaitPlease"), [](ShotContext &) { return waitWindow(); });
}
