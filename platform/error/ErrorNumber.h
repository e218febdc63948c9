#pragma once

namespace velmar {

/// Numbers of the run-time errors that this system raises. Where the platform has a traditional number for a
/// kind of failure, it is kept, so that a host's own handlers go on to work.
enum ErrorNumber : long {
  kInvalidProcedureCall = 5,
  kOverflow = 6,
  kSubscriptOutOfRange = 9,
  kTypeMismatch = 13,
  kInternalError = 51,
  kFileNotFound = 53,
  kDeviceIoError = 57,
  kFileAlreadyExists = 58,
  kDiskFull = 61,
  kPermissionDenied = 70,
  kPathNotFound = 76,
  kObjectNotSet = 91,
  kInvalidUseOfNull = 94,
  kInvalidPropertyValue = 380,
  kCannotCreateObject = 429,
  kMemberNotFound = 438,
  kKeyAlreadyInUse = 457,
  kItemNotInCollection = 3265,
  kObjectClosed = 3704,
  kObjectOpen = 3705,
  kNoCurrentRow = 3021,
  kTableExists = 3010,
  kDatabaseNotFound = 3024,
  kFieldSizeExceeded = 3163,
  kWrongPassword = 3031,
  kNotADatabase = 3343,
  kDatabaseLocked = 3260,
  kReadOnly = 3027,
  kQuerySyntax = 3075,
  kUnknownName = 3061,
  kUnknownTable = 3078,
  kUnknownFunction = 3085,
  kDuplicateOutput = 3063,
  kDuplicateKey = 3022,
  kNoTransaction = 3034,
  kAmbiguousName = 3079,
  kRecordDeleted = 3167,
  kTransactionOpen = 3246,
  kFieldRequired = 3314,
  kColumnCountMismatch = 3346,
  kEngineFailure = 3000,
  kWorkbookFormat = 3274,
  kWorkbookLimit = 3434,
  kDialogCancelled = 32755,
};

}  // namespace velmar
