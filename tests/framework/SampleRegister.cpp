#include "SampleRegister.h"

#include "TListView.h"
#include "TframeListView.h"

#include <QBoxLayout>

TfrmSampleRegister::TfrmSampleRegister(const QStringList &captions,
                                       std::vector<QStringList> rowTexts, int userId)
    : rows(std::move(rowTexts))
{
    setObjectName(QStringLiteral("frmSampleRegister"));
    frame = new TframeListView(this, pnlClient, QStringLiteral("frameListView1"));
    auto *layout = new QVBoxLayout(pnlClient);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(frame);
    for (const QString &caption : captions)
        frame->lvMain->addColumn(caption, 120);
    frame->setROSetUserID(userId);
    LoadLVData();
    resize(700, 500);
}

void TfrmSampleRegister::LoadLVData()
{
    ++loads;
    TListView *list = frame->lvMain;
    list->beginUpdate();
    list->clear();
    for (size_t i = 0; i < rows.size(); ++i)
        list->addItem(rows[i].value(0), rows[i].mid(1), 100 + static_cast<int>(i));
    list->endUpdate();
}
