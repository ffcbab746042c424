#include "app/LookButton.h"

#include "image/CharImage.h"

LookButton::LookButton(QWidget* parent)
    : QToolButton(parent)
{
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void LookButton::setFilter(int filter)
{
    m_filter = filter;
    setText(QString::fromUtf8(lumora::CharImage::getFilterName(filter)));
}
