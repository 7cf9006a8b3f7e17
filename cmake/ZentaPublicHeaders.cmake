# The headers a host includes, and only those: the Qt classes and the value types and records
# they hand over; the headless toolkit and the control logic it runs, for hosts that test their
# screens without a display; and what those include. Toolkit and entry-rule internals stay out.
# A public header that starts including another must list it here: the package test compiles
# every installed header against the installed tree.
set(ZENTA_PUBLIC_HEADERS
  zenta/qt/application_context.h zenta/qt/control_widget.h zenta/qt/govt_details.h
  zenta/qt/invoice_entry.h zenta/qt/metatypes.h zenta/qt/payment_details.h zenta/qt/pmt_details.h
  zenta/qt/std_payment.h zenta/qt/translator.h zenta/qt/chart_of_accounts.h
  zenta/qt/invoice_record.h zenta/qt/invoice_line_list.h
  zenta/qt/testing/modal_scripts.h
  zenta/qt/toolkit/qt_dialog_surface.h zenta/qt/toolkit/twips_layout.h
  zenta/core/currency.h zenta/core/date.h zenta/core/date_format.h zenta/core/date_mask.h
  zenta/core/decimal.h zenta/core/host_error.h zenta/core/number_format.h zenta/core/ole_color.h
  zenta/core/rate.h zenta/core/utf8.h zenta/core/variant.h
  zenta/records/cls_distribution.h zenta/records/cls_distributions.h zenta/records/cls_invoice.h
  zenta/records/distribution_source.h zenta/records/gl_account.h zenta/records/account_index.h
  zenta/records/chart_of_accounts.h
  zenta/platform/headless/button_widget.h zenta/platform/headless/check_box_widget.h
  zenta/platform/headless/child_lookup.h zenta/platform/headless/date_edit_widget.h
  zenta/platform/headless/decoration_widget.h zenta/platform/headless/dialog.h
  zenta/platform/headless/form.h zenta/platform/headless/grid_widget.h
  zenta/platform/headless/host.h zenta/platform/headless/input_node.h
  zenta/platform/headless/label_widget.h zenta/platform/headless/memory_property_bag.h
  zenta/platform/headless/number_edit_widget.h zenta/platform/headless/scoped_flag.h
  zenta/platform/headless/surface.h zenta/platform/headless/text_box_widget.h
  zenta/platform/headless/user.h zenta/platform/headless/widget_base.h
  zenta/platform/array_2d.h zenta/platform/button.h zenta/platform/check_box.h
  zenta/platform/container_metrics.h zenta/platform/control_surface.h zenta/platform/date_edit.h
  zenta/platform/dialog_surface.h zenta/platform/event_channel.h zenta/platform/field_value.h
  zenta/platform/grid.h zenta/platform/grid_column.h zenta/platform/grid_engine.h
  zenta/platform/grid_notifications.h zenta/platform/grid_source.h zenta/platform/host_services.h
  zenta/platform/keys.h zenta/platform/label.h zenta/platform/lifetime.h
  zenta/platform/message_box.h zenta/platform/number_edit.h zenta/platform/property_bag.h
  zenta/platform/raised_event.h zenta/platform/text_box.h zenta/platform/widget.h
  zenta/entry/common_properties.h zenta/entry/gst_hst_cell.h zenta/entry/gst_hst_settings.h
  zenta/entry/gst_hst_table.h zenta/entry/undo_history.h zenta/entry/account_number.h
  zenta/controls/simple/amount_gst_pair.h zenta/controls/simple/govt_details.h
  zenta/controls/simple/govt_items_table.h zenta/controls/simple/pmt_details.h
  zenta/controls/simple/small_control.h zenta/controls/simple/std_payment.h
  zenta/controls/payment_details/payment_details.h zenta/controls/payment_details/payment_events.h
  zenta/controls/payment_details/payment_properties.h
  zenta/controls/invoice_entry/invoice_entry.h zenta/controls/invoice_entry/invoice_events.h
  zenta/controls/invoice_entry/invoice_lines_source.h
  zenta/controls/invoice_entry/invoice_properties.h zenta/controls/invoice_entry/invoice_store.h
  zenta/controls/invoice_entry/invoice_line_block.h
  zenta/controls/distribution/distribution_model.h
  zenta/controls/distribution/distribution_opener.h zenta/controls/distribution/frm_distribution.h
  zenta/controls/distribution/library_context.h zenta/controls/distribution/account_chart.h
  zenta/controls/distribution/account_completion.h
)

# What the API reference documents, every member: the Qt classes, the value types and records
# their members hand over, and the errors they report.
set(ZENTA_REFERENCE_HEADERS
  zenta/qt/application_context.h zenta/qt/control_widget.h zenta/qt/govt_details.h
  zenta/qt/invoice_entry.h zenta/qt/metatypes.h zenta/qt/payment_details.h zenta/qt/pmt_details.h
  zenta/qt/std_payment.h zenta/qt/translator.h zenta/qt/chart_of_accounts.h
  zenta/qt/invoice_record.h zenta/qt/invoice_line_list.h
  zenta/core/currency.h zenta/core/host_error.h zenta/core/number_format.h
  zenta/records/cls_distribution.h zenta/records/cls_distributions.h zenta/records/cls_invoice.h)
