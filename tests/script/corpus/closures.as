// versions: 6-8
// Closures, super, prototype chains, getters, strict equality, instanceof.
function counter() { var n = 0; return function () { return ++n; }; }
c = counter(); d = counter();
trace(c()); //= 1
trace(c()); //= 2
trace(d()); //= 1
function adder(a) { return function (b) { return a + b; }; }
trace(adder(3)(4)); //= 7
function deep(a) { return function (b) { return function (c) { return a + b + c; }; }; }
trace(deep("x")("y")("z")); //= xyz
function params(a) { var set1 = function (v) { a = v; }; set1(9); return a; }
trace(params(1)); //= 9
function A(n) { this.n = n; }
A.prototype.who = function () { return "A" + this.n; };
function B(n) { super(n + 1); }
B.prototype.__proto__ = A.prototype;
B.prototype.__constructor__ = A;
B.prototype.who = function () { return "B+" + super.who(); };
made = new B(4);
trace(made.who());  //= B+A5
trace(made instanceof B); //= true
trace(made instanceof A); //= true
trace(made instanceof Date); //= false
trace(1 === 1);     //= true
trace("1" === 1);   //= false
trace("1" !== 1);   //= true
trace(null === undefined); //= false
o = {};
o.addProperty("twice", function () { return this.v * 2; }, function (v) { this.v = v; });
o.twice = 8;
trace(o.twice);     //= 16
o.twice++;
trace(o.v);         //= 17
trace(o.twice++);   //= 34
trace(o.v);         //= 35
_global.everywhere = "g";
trace(everywhere);  //= g
function inFunction() { return _global.everywhere + this._name; }
trace(inFunction()); //= g
function rootIn() { return _root == _level0; }
trace(rootIn());    //= true
function late(x) { var f = function () { return y; }; var y = x; return f(); }
trace(late(6));     //= 6
function rec(n) { var sub = n - 1; if (n > 0) { rec(sub); } list += sub; }
list = ""; rec(2); trace(list); //= -101
ASSetPropFlags(o, "hidden", 1);
trace("x" gt "a");  //= true
trace("a" le "b");  //= true
// Of parameters with one name the last counts.
function twice(b, a, a, c) { return b + "," + a + "," + c; }
trace(twice(1, 2, 3, 4)); //= 1,3,4
function missing(a, a) { return typeof(a); }
trace(missing(1));        //= undefined
function captures(a, a) { a += 1; return function () { return a; }; }
trace(captures(1, 5)());  //= 6
// An interface may extend more than one.
interface One { function one(); }
interface Two { function two(); }
interface Three { function three(); }
interface All extends One, Two, Three { function all(); }
class Does implements All { function one() { return 1; } function two() { } function three() { } function all() { } }
does = new Does();
trace(does.one());           //= 1
trace(does instanceof All);  //=6-6 false
                             //=7+ true
trace(does instanceof One);  //=6-6 false
                             //=7+ true
trace((does instanceof Two) + "," + (does instanceof Three)); //=6-6 false,false
                             //=7+ true,true
