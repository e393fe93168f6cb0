#pragma once

@class NSData;

/// From now on parsing the same large property list twice in a row gives the same values, without parsing.
void TNKeepParsedSettings();

/// Remembers what the bytes of a large property list stand for: parsing the same bytes gives `value` again.
/// Only the latest is.
void TNRememberParsed(NSData *bytes, id value);
