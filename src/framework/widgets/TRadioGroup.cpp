#include "TRadioGroup.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QRadioButton>

TRadioGroup::TRadioGroup(const QStringList &items, int columns, QWidget *parent)
    : QGroupBox(parent), m_group(new QButtonGroup(this))
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(6, 2, 6, 2);
    for (int i = 0; i < items.size(); ++i) {
        auto *button = new QRadioButton(items[i], this);
        m_group->addButton(button, i);
        layout->addWidget(button, i / columns, i % columns);
        m_buttons.append(button);
    }
    connect(m_group, &QButtonGroup::idClicked, this, &TRadioGroup::clicked);
}

int TRadioGroup::itemIndex() const
{
    return m_group->checkedId();
}

void TRadioGroup::setItemIndex(int index)
{
    if (index >= 0 && index < count()) {
        m_buttons[index]->setChecked(true);
        return;
    }
    if (QAbstractButton *checked = m_group->checkedButton()) {
        m_group->setExclusive(false);
        checked->setChecked(false);
        m_group->setExclusive(true);
    }
}
