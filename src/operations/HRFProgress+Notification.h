#pragma once

class HRFProgress;

/// Tells the user how a batch has ended: what it was, and how many files are done. On the main
/// thread.
///
/// @param regardless even while the application is in front
void sendAssociatedNotificationRegardless(const HRFProgress &progress, bool regardless);
