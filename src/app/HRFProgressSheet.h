#pragma once

#include "kit/HRFUserInteraction.h"

#include <QPointer>

class HRFProgressDialog;
class QWidget;

/// A progress on top of a window.
class HRFProgressSheet : public HRFProgressDisplay
{
public:
    HRFProgressSheet(const std::shared_ptr<HRFProgress> &progress,
                     const HRFProgressAppearance &appearance, QWidget *parent);
    ~HRFProgressSheet() override;

private:
    QPointer<HRFProgressDialog> m_dialog; ///< goes with the window when that goes first
};
