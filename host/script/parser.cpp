#include "host/script/parser.h"

#include "host/lang/lexer.h"

namespace hostsim {

namespace {

// Binary operators by precedence level, lowest first. "isa" is handled with comparisons.
const char * const kOrOperators[] = {"or"};
const char * const kAndOperators[] = {"and"};
const char * const kComparisonOperators[] = {"=", "<>", "<", ">", "<=", ">=", "is"};
const char * const kAdditiveOperators[] = {"+", "-"};
const char * const kMultiplicativeOperators[] = {"*", "/", "\\", "mod"};
// Deepest nesting of blocks and expressions read, so that no text can exhaust the stack.
const int kMaxNesting = 256;

class Parser {
public:
    explicit Parser(std::string_view text) : tokens_(Tokenize(text)) {}

    Program Run()
    {
        Program program;
        for (;;) {
            SkipBlankLines();
            if (AtEnd())
                break;
            if (Current().IsWord("sub") || Current().IsWord("function"))
                program.routines.push_back(ParseRoutine());
            else
                program.main.push_back(ParseStatement());
        }
        return program;
    }

private:
    // Counts one level of nesting while it lives.
    class Nest {
    public:
        explicit Nest(Parser & p) : p_(p)
        {
            if (++p_.depth_ > kMaxNesting)
                p_.Fail("the text is nested too deeply");
        }
        ~Nest() { --p_.depth_; }
        Nest(const Nest &) = delete;
        Nest & operator=(const Nest &) = delete;

    private:
        Parser & p_;
    };

    // --- tokens

    const Token & Current() const { return tokens_[pos_]; }
    const Token & Ahead(size_t n) const
    {
        return tokens_[pos_ + n < tokens_.size() ? pos_ + n : tokens_.size() - 1];
    }
    bool AtEnd() const { return Current().kind == TokenKind::EndOfText; }
    bool AtLineEnd() const { return Current().kind == TokenKind::EndOfLine || AtEnd(); }
    void Next()
    {
        if (!AtEnd())
            ++pos_;
    }

    [[noreturn]] void Fail(const std::string & message) const
    {
        if (AtEnd())
            throw IncompleteInput(Current().where, message);
        throw SourceError(Current().where, message);
    }

    std::string Shown() const
    {
        if (AtEnd())
            return "the end of the script";
        if (Current().kind == TokenKind::EndOfLine)
            return "the end of the line";
        return "'" + Current().text + "'";
    }

    void ExpectWord(const char * word)
    {
        if (!Current().IsWord(word))
            Fail(std::string("expected ") + word + " but found " + Shown());
        Next();
    }

    void ExpectSymbol(const char * symbol)
    {
        if (!Current().IsSymbol(symbol))
            Fail(std::string("expected '") + symbol + "' but found " + Shown());
        Next();
    }

    std::string ExpectName(const char * what)
    {
        if (Current().kind != TokenKind::Identifier)
            Fail(std::string("expected ") + what + " but found " + Shown());
        std::string name = Current().text;
        Next();
        return name;
    }

    void EndOfStatement()
    {
        if (!AtLineEnd())
            Fail("unexpected " + Shown() + " after the statement");
        Next();
    }

    void SkipBlankLines()
    {
        while (Current().kind == TokenKind::EndOfLine)
            Next();
    }

    // --- routines and blocks

    std::unique_ptr<Routine> ParseRoutine()
    {
        auto r = std::make_unique<Routine>();
        r->where = Current().where;
        bool isFunction = Current().IsWord("function");
        Next();
        r->name = ExpectName("a routine name");
        if (Current().IsSymbol("(")) {
            Next();
            while (!Current().IsSymbol(")")) {
                r->parameters.push_back(ParseParameter());
                if (!Current().IsSymbol(","))
                    break;
                Next();
            }
            ExpectSymbol(")");
        }
        if (isFunction) {
            ExpectWord("as");
            r->result = ParseType();
        }
        EndOfStatement();
        r->body = ParseBlock({isFunction ? "end function" : "end sub"});
        ExpectWord("end");
        ExpectWord(isFunction ? "function" : "sub");
        EndOfStatement();
        return r;
    }

    Parameter ParseParameter()
    {
        Parameter p;
        if (Current().IsWord("byval"))
            Next();
        if (Current().IsWord("byref"))
            Fail("ByRef parameters of script routines are not supported");
        p.name = ExpectName("a parameter name");
        ExpectWord("as");
        p.type = ParseType();
        if (Current().IsSymbol("=")) {
            Next();
            ExprPtr e = ParseExpression();
            if (e->kind != Expr::Kind::Literal)
                Fail("a default value must be a constant");
            p.defaultValue = e->literal;
        }
        return p;
    }

    TypeRef ParseType()
    {
        TypeRef t;
        ParseTypeName(ExpectName("a type name"), t);
        return t;
    }

    // A block ends before a line that starts with one of `enders` (word pairs such as
    // "end if" or single words such as "next").
    bool AtEnder(const std::vector<std::string> & enders) const
    {
        for (const std::string & e : enders) {
            size_t space = e.find(' ');
            if (space == std::string::npos) {
                if (Current().IsWord(e))
                    return true;
            } else if (Current().IsWord(e.substr(0, space)) && Ahead(1).IsWord(e.substr(space + 1))) {
                return true;
            }
        }
        return false;
    }

    Block ParseBlock(const std::vector<std::string> & enders)
    {
        Block block;
        for (;;) {
            SkipBlankLines();
            if (AtEnd())
                Fail("the block is not closed with " + enders.front());
            if (AtEnder(enders))
                return block;
            block.push_back(ParseStatement());
        }
    }

    // --- statements

    std::unique_ptr<Stmt> NewStmt(Stmt::Kind kind)
    {
        auto s = std::make_unique<Stmt>();
        s->kind = kind;
        s->where = Current().where;
        return s;
    }

    std::unique_ptr<Stmt> ParseStatement()
    {
        Nest nest(*this);
        const Token & t = Current();
        if (t.IsWord("var") || t.IsWord("dim"))
            return ParseVar();
        if (t.IsWord("if"))
            return ParseIf();
        if (t.IsWord("for"))
            return ParseFor();
        if (t.IsWord("while"))
            return ParseWhile();
        if (t.IsWord("try"))
            return ParseTry();
        if (t.IsWord("print") || t.IsWord("raise") || t.IsWord("return"))
            return ParseKeywordWithValue();
        if (t.IsWord("exit"))
            return ParseExit();
        if (t.IsWord("sub") || t.IsWord("function"))
            Fail("Sub and Function are allowed only at the top level");
        std::unique_ptr<Stmt> s = ParseSimple();
        EndOfStatement();
        return s;
    }

    std::unique_ptr<Stmt> ParseVar()
    {
        auto s = NewStmt(Stmt::Kind::Var);
        Next();
        for (;;) {
            s->names.push_back(ExpectName("a variable name"));
            if (!Current().IsSymbol(","))
                break;
            Next();
        }
        ExpectWord("as");
        if (Current().IsWord("new")) {
            s->asNew = true;
            Next();
            s->typeName = ExpectName("a class name");
            if (Current().IsSymbol("("))
                s->args = ParseArguments();
        } else {
            s->typeName = ExpectName("a type name");
            if (Current().IsSymbol("=")) {
                Next();
                s->value = ParseExpression();
            }
        }
        EndOfStatement();
        return s;
    }

    std::unique_ptr<Stmt> ParseIf()
    {
        auto s = NewStmt(Stmt::Kind::If);
        Next();
        s->conditions.push_back(ParseExpression());
        ExpectWord("then");
        if (!AtLineEnd()) { // single-line If
            Block then;
            then.push_back(ParseSimpleOrKeyword());
            s->bodies.push_back(std::move(then));
            if (Current().IsWord("else")) {
                Next();
                Block otherwise;
                otherwise.push_back(ParseSimpleOrKeyword());
                s->bodies.push_back(std::move(otherwise));
            }
            EndOfStatement();
            return s;
        }
        EndOfStatement();
        const std::vector<std::string> enders = {"end if", "elseif", "else"};
        s->bodies.push_back(ParseBlock(enders));
        for (;;) {
            if (Current().IsWord("elseif")) {
                Next();
                s->conditions.push_back(ParseExpression());
                ExpectWord("then");
                EndOfStatement();
                s->bodies.push_back(ParseBlock(enders));
            } else if (Current().IsWord("else")) {
                Next();
                if (Current().IsWord("if")) { // "Else If" on one line reads as ElseIf
                    Next();
                    s->conditions.push_back(ParseExpression());
                    ExpectWord("then");
                    EndOfStatement();
                    s->bodies.push_back(ParseBlock(enders));
                    continue;
                }
                EndOfStatement();
                s->bodies.push_back(ParseBlock({"end if"}));
            } else {
                break;
            }
        }
        ExpectWord("end");
        ExpectWord("if");
        EndOfStatement();
        return s;
    }

    // The statement after Then or Else on a single-line If.
    std::unique_ptr<Stmt> ParseSimpleOrKeyword()
    {
        const Token & t = Current();
        if (t.IsWord("print") || t.IsWord("raise") || t.IsWord("return"))
            return ParseKeywordOperand();
        if (t.IsWord("exit")) {
            auto s = NewStmt(Stmt::Kind::Exit);
            Next();
            if (Current().IsWord("for") || Current().IsWord("while") || Current().IsWord("sub") || Current().IsWord("function")) {
                s->exitWhat = LowerCase(Current().text);
                Next();
            }
            return s;
        }
        return ParseSimple();
    }

    std::unique_ptr<Stmt> ParseFor()
    {
        auto s = NewStmt(Stmt::Kind::For);
        Next();
        s->counter = ExpectName("a counter variable");
        if (Current().IsWord("as")) {
            Next();
            s->typeName = ExpectName("a type name");
        }
        ExpectSymbol("=");
        s->from = ParseExpression();
        ExpectWord("to");
        s->to = ParseExpression();
        if (Current().IsWord("step")) {
            Next();
            s->step = ParseExpression();
        }
        EndOfStatement();
        s->body = ParseBlock({"next"});
        Next();
        if (Current().kind == TokenKind::Identifier)
            Next();
        EndOfStatement();
        return s;
    }

    std::unique_ptr<Stmt> ParseWhile()
    {
        auto s = NewStmt(Stmt::Kind::While);
        Next();
        s->value = ParseExpression();
        EndOfStatement();
        s->body = ParseBlock({"wend"});
        Next();
        EndOfStatement();
        return s;
    }

    std::unique_ptr<Stmt> ParseTry()
    {
        auto s = NewStmt(Stmt::Kind::Try);
        Next();
        EndOfStatement();
        const std::vector<std::string> enders = {"end try", "catch", "finally"};
        s->body = ParseBlock(enders);
        while (Current().IsWord("catch")) {
            CatchClause c;
            c.where = Current().where;
            Next();
            if (Current().kind == TokenKind::Identifier) {
                c.variable = Current().text;
                Next();
                if (Current().IsWord("as")) {
                    Next();
                    c.className = ExpectName("an exception class");
                }
            }
            EndOfStatement();
            c.body = ParseBlock(enders);
            s->catches.push_back(std::move(c));
        }
        if (Current().IsWord("finally")) {
            Next();
            EndOfStatement();
            s->hasFinally = true;
            s->finallyBody = ParseBlock({"end try"});
        }
        ExpectWord("end");
        ExpectWord("try");
        EndOfStatement();
        return s;
    }

    std::unique_ptr<Stmt> ParseKeywordWithValue()
    {
        std::unique_ptr<Stmt> s = ParseKeywordOperand();
        EndOfStatement();
        return s;
    }

    std::unique_ptr<Stmt> ParseKeywordOperand()
    {
        Stmt::Kind kind = Current().IsWord("print") ? Stmt::Kind::Print
                        : Current().IsWord("raise") ? Stmt::Kind::Raise : Stmt::Kind::Return;
        auto s = NewStmt(kind);
        Next();
        if (kind == Stmt::Kind::Return && (AtLineEnd() || Current().IsWord("else")))
            return s;
        s->value = ParseExpression();
        return s;
    }

    std::unique_ptr<Stmt> ParseExit()
    {
        std::unique_ptr<Stmt> s = ParseSimpleOrKeyword();
        EndOfStatement();
        return s;
    }

    // An assignment or a call, the two statements that start with an expression.
    std::unique_ptr<Stmt> ParseSimple()
    {
        auto s = NewStmt(Stmt::Kind::Call);
        ExprPtr e = ParsePostfix();
        if (Current().IsSymbol("=")) {
            if (e->kind != Expr::Kind::Name && e->kind != Expr::Kind::Member && e->kind != Expr::Kind::Call)
                Fail("this cannot be assigned to");
            Next();
            s->kind = Stmt::Kind::Assign;
            s->target = std::move(e);
            s->value = ParseExpression();
            return s;
        }
        if (e->kind != Expr::Kind::Name && e->kind != Expr::Kind::Member && e->kind != Expr::Kind::Call)
            Fail("expected a statement, found an expression");
        if (!AtLineEnd() && !Current().IsWord("else")) {
            // A call with arguments but no parentheses: `obj.Method a, b`
            auto call = std::make_unique<Expr>();
            call->kind = Expr::Kind::Call;
            call->where = e->where;
            call->target = std::move(e);
            for (;;) {
                call->args.push_back(ParseExpression());
                if (!Current().IsSymbol(","))
                    break;
                Next();
            }
            e = std::move(call);
        }
        s->target = std::move(e);
        return s;
    }

    // --- expressions

    ExprPtr Make(Expr::Kind kind, SourcePosition where)
    {
        auto e = std::make_unique<Expr>();
        e->kind = kind;
        e->where = where;
        return e;
    }

    template <size_t N>
    bool AtOperator(const char * const (&ops)[N]) const
    {
        for (const char * op : ops)
            if (Current().IsSymbol(op) || Current().IsWord(op))
                return true;
        return false;
    }

    ExprPtr Binary(ExprPtr left, SourcePosition where, std::string op, ExprPtr right)
    {
        ExprPtr e = Make(Expr::Kind::Binary, where);
        e->name = LowerCase(op);
        e->target = std::move(left);
        e->right = std::move(right);
        return e;
    }

    ExprPtr ParseExpression()
    {
        Nest nest(*this);
        return ParseOr();
    }

    ExprPtr ParseOr()
    {
        ExprPtr left = ParseAnd();
        while (AtOperator(kOrOperators)) {
            SourcePosition where = Current().where;
            std::string op = Current().text;
            Next();
            left = Binary(std::move(left), where, op, ParseAnd());
        }
        return left;
    }

    ExprPtr ParseAnd()
    {
        ExprPtr left = ParseNot();
        while (AtOperator(kAndOperators)) {
            SourcePosition where = Current().where;
            std::string op = Current().text;
            Next();
            left = Binary(std::move(left), where, op, ParseNot());
        }
        return left;
    }

    ExprPtr ParseNot()
    {
        Nest nest(*this);
        if (Current().IsWord("not")) {
            ExprPtr e = Make(Expr::Kind::Unary, Current().where);
            e->name = "not";
            Next();
            e->target = ParseNot();
            return e;
        }
        return ParseComparison();
    }

    ExprPtr ParseComparison()
    {
        ExprPtr left = ParseAdditive();
        for (;;) {
            SourcePosition where = Current().where;
            if (Current().IsWord("isa")) {
                Next();
                ExprPtr e = Make(Expr::Kind::IsA, where);
                e->target = std::move(left);
                e->name = ExpectName("a class name");
                left = std::move(e);
            } else if (AtOperator(kComparisonOperators)) {
                std::string op = Current().text;
                Next();
                left = Binary(std::move(left), where, op, ParseAdditive());
            } else {
                return left;
            }
        }
    }

    ExprPtr ParseAdditive()
    {
        ExprPtr left = ParseMultiplicative();
        while (AtOperator(kAdditiveOperators)) {
            SourcePosition where = Current().where;
            std::string op = Current().text;
            Next();
            left = Binary(std::move(left), where, op, ParseMultiplicative());
        }
        return left;
    }

    ExprPtr ParseMultiplicative()
    {
        ExprPtr left = ParseUnary();
        while (AtOperator(kMultiplicativeOperators)) {
            SourcePosition where = Current().where;
            std::string op = Current().text;
            Next();
            left = Binary(std::move(left), where, op, ParseUnary());
        }
        return left;
    }

    ExprPtr ParseUnary()
    {
        Nest nest(*this);
        if (Current().IsSymbol("-")) {
            ExprPtr e = Make(Expr::Kind::Unary, Current().where);
            e->name = "-";
            Next();
            e->target = ParseUnary();
            return e;
        }
        return ParsePower();
    }

    ExprPtr ParsePower()
    {
        ExprPtr left = ParsePostfix();
        while (Current().IsSymbol("^")) {
            SourcePosition where = Current().where;
            Next();
            ExprPtr right;
            if (Current().IsSymbol("-")) {
                right = Make(Expr::Kind::Unary, Current().where);
                right->name = "-";
                Next();
                right->target = ParsePostfix();
            } else {
                right = ParsePostfix();
            }
            left = Binary(std::move(left), where, "^", std::move(right));
        }
        return left;
    }

    std::vector<ExprPtr> ParseArguments()
    {
        std::vector<ExprPtr> args;
        ExpectSymbol("(");
        if (!Current().IsSymbol(")")) {
            for (;;) {
                args.push_back(ParseExpression());
                if (!Current().IsSymbol(","))
                    break;
                Next();
            }
        }
        ExpectSymbol(")");
        return args;
    }

    ExprPtr ParsePostfix()
    {
        ExprPtr e = ParsePrimary();
        for (;;) {
            if (Current().IsSymbol(".")) {
                Next();
                ExprPtr m = Make(Expr::Kind::Member, Current().where);
                m->name = ExpectName("a member name");
                m->target = std::move(e);
                e = std::move(m);
            } else if (Current().IsSymbol("(") && (e->kind == Expr::Kind::Name || e->kind == Expr::Kind::Member)) {
                ExprPtr c = Make(Expr::Kind::Call, e->where);
                c->target = std::move(e);
                c->args = ParseArguments();
                e = std::move(c);
            } else {
                return e;
            }
        }
    }

    ExprPtr ParsePrimary()
    {
        const Token & t = Current();
        SourcePosition where = t.where;
        if (t.kind == TokenKind::Integer) {
            ExprPtr e = Make(Expr::Kind::Literal, where);
            e->literal.kind = t.isColor ? Literal::Kind::Color
                            : t.isUnsigned ? Literal::Kind::UnsignedInteger : Literal::Kind::Integer;
            e->literal.integer = static_cast<int64_t>(t.integer);
            e->literal.unsignedInteger = t.integer;
            Next();
            return e;
        }
        if (t.kind == TokenKind::Real) {
            ExprPtr e = Make(Expr::Kind::Literal, where);
            e->literal.kind = Literal::Kind::Real;
            e->literal.real = t.real;
            Next();
            return e;
        }
        if (t.kind == TokenKind::String) {
            ExprPtr e = Make(Expr::Kind::Literal, where);
            e->literal.kind = Literal::Kind::String;
            e->literal.text = t.text;
            Next();
            return e;
        }
        if (t.IsSymbol("(")) {
            Next();
            ExprPtr e = ParseExpression();
            ExpectSymbol(")");
            return e;
        }
        if (t.IsWord("true") || t.IsWord("false")) {
            ExprPtr e = Make(Expr::Kind::Literal, where);
            e->literal.kind = Literal::Kind::Boolean;
            e->literal.integer = t.IsWord("true") ? 1 : 0;
            Next();
            return e;
        }
        if (t.IsWord("nil")) {
            ExprPtr e = Make(Expr::Kind::Literal, where);
            e->literal.kind = Literal::Kind::Nil;
            Next();
            return e;
        }
        if (t.IsWord("new")) {
            Next();
            ExprPtr e = Make(Expr::Kind::New, where);
            e->name = ExpectName("a class name");
            if (Current().IsSymbol("("))
                e->args = ParseArguments();
            return e;
        }
        if (t.kind == TokenKind::Identifier && !IsReserved(t)) {
            ExprPtr e = Make(Expr::Kind::Name, where);
            e->name = t.text;
            Next();
            return e;
        }
        Fail("expected a value but found " + Shown());
    }

    static bool IsReserved(const Token & t)
    {
        static const char * const kReserved[] = {"then", "else", "elseif", "end", "to", "step", "next", "wend",
                                                 "and", "or", "not", "mod", "is", "isa", "as", "catch", "finally"};
        for (const char * w : kReserved)
            if (t.IsWord(w))
                return true;
        return false;
    }

    std::vector<Token> tokens_;
    size_t pos_ = 0;
    int depth_ = 0;
};

} // namespace

Program ParseProgram(std::string_view text)
{
    return Parser(text).Run();
}

} // namespace hostsim
