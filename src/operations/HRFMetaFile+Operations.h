#pragma once

class HRFFileOperation;
class HRFMetaFile;

/// Refreshes a record of a private context from an operation that has succeeded on its file.
void HRFUpdateWithOperation(HRFMetaFile &file, const HRFFileOperation &operation);
