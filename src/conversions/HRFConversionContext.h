#pragma once

#include <QtGlobal>

/// The user's choices for one conversion.
struct HRFConversionContext
{
    /// What stands in for a missing value, as the setting says it.
    static constexpr qlonglong fallbackUnknown = 0; ///< "Unknown Album"
    static constexpr qlonglong fallbackEmpty = 1;
    /// As any further number: the whole pattern yields nothing.
    static constexpr qlonglong fallbackNothing = 2;

    /// Takes the choices from the user's settings.
    HRFConversionContext();
    /// For patterns that are matched: what they render to, in previews, becomes no name.
    static HRFConversionContext forMatching();

    void loadUserDefaults();

    /// Track and disc numbers get leading zeros.
    bool usesNumericPadding = false;
    /// Names go without the characters that NTFS forbids.
    bool isNTFSFriendly = false;
    /// The same for SMB shares.
    bool isSMBFriendly = false;
    /// Copy instead of move; not from the settings.
    bool fileOperationCopy = false;
    /// Carry along the files that are no audio files.
    bool moveNonAudioFiles = false;
    /// Offer to remove folders that have become empty.
    bool removeEmptyDirectories = false;
    /// Show the moved files afterwards.
    bool revealOnSuccess = false;
    qlonglong fallbackAction = fallbackUnknown;

    friend bool operator==(const HRFConversionContext &, const HRFConversionContext &) = default;
};
