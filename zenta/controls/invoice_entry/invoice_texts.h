#pragma once

namespace zenta::texts {

// What the invoice list tells the payer about a date, number or amount, typed or pasted.
inline constexpr const char* kDateRequired = "An invoice date is required";
inline constexpr const char* kNumberRequired = "An invoice number / description is required";
inline constexpr const char* kAmountRequired = "An invoice amount is required";
inline constexpr const char* kTooFarAhead =
    "The Invoice Date cannot be set to more than two years into the future. Please adjust the date.";
inline constexpr const char* kDateTitle = "Invoice Date Validation";
inline constexpr const char* kFutureDate = "You have entered future dated invoice, would you like to change it?";
inline constexpr const char* kLongAgo =
    "The Invoice Date you entered is more than a year earlier than the current date, would you like to change it?";
inline constexpr const char* kNumberTooLong = "The Invoice Number/Description cannot be more than 255 characters.";

// Pasting rows.
inline constexpr const char* kPasteTitle = "Paste Invoices";
inline constexpr const char* kPasteRefused = "These rows were not pasted:";
inline constexpr const char* kNotADate = "not a date";
inline constexpr const char* kNotAnAmount = "not an amount";
inline constexpr const char* kDuplicateRefused = "refused as a duplicate";
inline constexpr const char* kLimitRefused = "refused: over the amount limit";
inline constexpr const char* kDateToChange = "left out to change the date";
inline constexpr const char* kPasteTooMany =
    "The list holds at most 32,767 invoices: nothing was pasted.";

}  // namespace zenta::texts
