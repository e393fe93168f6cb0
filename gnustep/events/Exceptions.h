#pragma once

@class NSException;

/// What follows an exception of an event handler.
enum class TNAfterException { goesOn, ends };

/// Lets exceptions that nobody catches be reported on the standard error stream: without it GNUstep drops
/// those of event handlers and shows a modal panel for others. After the application object exists.
void TNInstallExceptionReporting(TNAfterException after);

/// Prints the exception of an event handler; ends the program with status 70 if that is to follow.
void TNReportException(NSException *exception);
