#include "app/HRFProgressSheet.h"

#include "app/HRFProgressDialog.h"

HRFProgressSheet::HRFProgressSheet(const std::shared_ptr<HRFProgress> &progress,
                                   const HRFProgressAppearance &appearance, QWidget *parent)
    : m_dialog(new HRFProgressDialog(progress, appearance, parent))
{
}

HRFProgressSheet::~HRFProgressSheet()
{
    if (m_dialog)
        m_dialog->end();
}
