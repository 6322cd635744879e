#include "DateRangeBar.h"

#include "RequiredDateEdit.h"
#include "TBitBtn.h"

#include <QBoxLayout>
#include <QLabel>

DateRangeBar DateRangeBar::build(QWidget *panel, const QString &fromCaption,
                                 const QString &toCaption)
{
    const QString refresh = QStringLiteral("Odśwież");
    DateRangeBar bar{requiredDateEdit(QStringLiteral("deOd"), panel),
                     requiredDateEdit(QStringLiteral("deDo"), panel),
                     TBitBtn::create(refresh, QStringLiteral("btnOdswiez"), panel)};
    auto *layout = new QHBoxLayout(panel);
    layout->setContentsMargins(8, 4, 8, 4);
    for (const auto &[caption, field] : {std::pair{fromCaption, bar.from}, {toCaption, bar.to}}) {
        auto *label = new QLabel(caption, panel);
        label->setBuddy(field);
        layout->addWidget(label);
        layout->addWidget(field);
    }
    layout->addWidget(bar.refresh);
    layout->addStretch(1);
    return bar;
}
