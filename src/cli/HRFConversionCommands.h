#pragma once

struct HRFCommandOptions;

/// The commands of lirra-cli that make tags of patterns, and what patterns are made of. See
/// HRFFileCommands.h.
int HRFConvertToTags(const HRFCommandOptions &options);
int HRFComposeTag(const HRFCommandOptions &options);
int HRFListTokens(const HRFCommandOptions &options);
