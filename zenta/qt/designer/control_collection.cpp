#include "zenta/qt/designer/control_collection.h"

#include "zenta/qt/designer/control_plugin.h"
#include "zenta/qt/govt_details.h"
#include "zenta/qt/invoice_entry.h"
#include "zenta/qt/payment_details.h"
#include "zenta/qt/pmt_details.h"
#include "zenta/qt/std_payment.h"

namespace zenta::qt {

ControlCollection::ControlCollection(QObject* parent) : QObject(parent) {
  widgets_.append(new ControlPlugin(
      {"zenta::qt::StdPayment", "Payment Amount", "zenta/qt/std_payment.h", "Payment amount with GST/HST",
       "One payment amount and, for a business payer, the GST/HST part of it. Amounts are typed as cents.",
       ":/zenta/designer/std_payment.png"},
      [](QWidget* form) { return new StdPayment(form); }, this));
  widgets_.append(new ControlPlugin(
      {"zenta::qt::PmtDetails", "Invoice Details", "zenta/qt/pmt_details.h", "One invoice: date, number, amount, GST/HST",
       "The date, number or description, amount and GST/HST of the single invoice a payment settles.",
       ":/zenta/designer/pmt_details.png"},
      [](QWidget* form) { return new PmtDetails(form); }, this));
  widgets_.append(new ControlPlugin(
      {"zenta::qt::GovtDetails", "Government Remittance", "zenta/qt/govt_details.h", "Government remittance",
       "Periods, due date, statement-only flag, comments, amounts and up to 26 lettered line items.",
       ":/zenta/designer/govt_details.png"},
      [](QWidget* form) { return new GovtDetails(form); }, this));
  widgets_.append(new ControlPlugin(
      {"zenta::qt::PaymentDetails", "Payment Details", "zenta/qt/payment_details.h", "Payment with its G/L distribution",
       "One payment's amount, GST/HST, net expense and what it is for, split over G/L accounts in the "
       "distribution window.",
       ":/zenta/designer/payment_details.png", true},
      [](QWidget* form) { return new PaymentDetails(form); }, this));
  widgets_.append(new ControlPlugin(
      {"zenta::qt::InvoiceEntry", "Invoice Entry", "zenta/qt/invoice_entry.h", "A list of invoices with their G/L distributions",
       "The invoices one payment settles: date, number or description and amount of each, with GST/HST and net "
       "expense for a business payer, each split over G/L accounts in the distribution window.",
       ":/zenta/designer/invoice_entry.png", true},
      [](QWidget* form) { return new InvoiceEntry(form); }, this));
}

}  // namespace zenta::qt
