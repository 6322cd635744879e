#include "TSearchPanel.h"

#include <QCoreApplication>
#include <QPalette>

namespace {

constexpr int Step = 5;

} // namespace

TSearchPanel::TSearchPanel(QWidget *parent)
    : QFrame(parent), m_topRow(new QWidget(this)), m_expandedPart(new QWidget(this))
{
    setAutoFillBackground(true);
    setMinimumHeight(CollapsedHeight);
    setPanelHeight(CollapsedHeight);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, colours.color(QPalette::Button));
    setPalette(colours);
}

void TSearchPanel::toggle()
{
    const bool opening = !isExpanded();
    const int target = opening ? ExpandedHeight : CollapsedHeight;
    const int step = opening ? Step : -Step;
    for (int h = height(); h != target;) {
        h = opening ? std::min(h + step, target) : std::max(h + step, target);
        setPanelHeight(h);
        QCoreApplication::processEvents();
    }
    QPalette colours = palette();
    colours.setColor(QPalette::Window, opening ? QColor(0xC0, 0xC0, 0xC0)
                                               : colours.color(QPalette::Button));
    setPalette(colours);
}

void TSearchPanel::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    m_topRow->setGeometry(0, 0, width(), CollapsedHeight);
    m_expandedPart->setGeometry(0, CollapsedHeight, width(), ExpandedHeight - CollapsedHeight);
}

void TSearchPanel::setPanelHeight(int height)
{
    setFixedHeight(height);
    // The panel may not be laid out yet; the rows must still fit it.
    resize(width(), height);
    // Out of sight, its buttons must not take accelerators from the form
    // ("S&zukaj" against "&Zapisz").
    m_expandedPart->setVisible(height > CollapsedHeight);
}
