// The point of sale's side of a tender: its request "Xsend.req", its audit "XAudit.DAT", and the
// answer "Xsend.ans", all in `Maindir`.
#pragma once

#include "records/app.h"

#include <string>
#include <string_view>

namespace tender {

/// The four values of "Xsend.req", as the point of sale spells them. A value that is missing at
/// the end of the file is empty.
struct TenderRequest {
    std::string table;
    std::string receipt;
    std::string server;
    std::string amount;
};

TenderRequest parseRequest(std::string_view content);

enum class Sent { Read, Missing, Unreadable };
/// Reads "Xsend.req"; the server becomes the `EmployeeNumber`. A value that is longer than the
/// record takes is cut, and the trace tells. Nothing is set unless the request was read.
Sent readRequest(records::App &app, TenderRequest &request);

std::string requestFile(const records::ProcessValues &values);
std::string auditFile(const records::ProcessValues &values);
std::string answerFile(const records::ProcessValues &values);

/// The one value of "XAudit.DAT"; empty when there is none.
std::string auditAmount(std::string_view content);

/// True when both amounts have the same value after the mask "#######.##".
bool amountsAgree(std::string_view audit, std::string_view amount);

/// The question when they do not agree, in one line; `amount` is the tender's.
std::string auditQuestion(std::string_view amount, bool localPath);

/// The answer block: `word`, then the nine fields common to every answer, each a quoted line with
/// its padding.
std::string answerBlock(std::string_view word, const records::CardRecord &CCdata);

/// The 11 lines of a decline that the processor answered: the word stands twice.
std::string answerDeclined(std::string_view word, const records::CardRecord &CCdata);

/// The 13 lines of a partial approval; line 1 begins with "DECLINE".
std::string answerPartial(const records::CardRecord &CCdata);

/// True for a table text that deletes a prepayment, on its first 9 characters.
bool isDeletedPrepayment(std::string_view table);

} // namespace tender
