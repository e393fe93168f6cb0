#pragma once

@class NSException;

/// Lets exceptions that nobody catches be reported on the standard error stream: without it GNUstep drops
/// those of event handlers and shows a modal panel for others. After the application object exists.
void TNInstallExceptionReporting();

/// Prints the exception; ends the program with status 70 when TARNWICK_STRICT_EXCEPTIONS is in the
/// environment.
void TNReportException(NSException *exception);
