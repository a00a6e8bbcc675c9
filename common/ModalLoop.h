#pragma once

class QDialog;

namespace tarn {

/// Runs @p dialog like QDialog::exec(), but is exception-safe: for dialogs whose slots let kernel
/// exceptions pass.
///
/// After an exception the dialog is still open and modal, as the slot left it. The host may read
/// it, run it again, hide it or destroy it. QDialog::exec() would keep a dangling pointer to its
/// event loop.
int RunModalLoop(QDialog& dialog);

} // namespace tarn
