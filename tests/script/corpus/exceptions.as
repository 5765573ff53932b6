// versions: 7-8
// try, catch, finally, throw; what leaves them.
try { throw "one"; } catch (e) { trace("caught " + e); } //= caught one
try { trace("body"); } finally { trace("last"); } //= body
                                  //= last
function thrower() { throw new Error("bad"); }
try { thrower(); trace("never"); } catch (e) { trace(e.message); } finally { trace("f"); } //= bad
                                  //= f
function returns() { try { return "from try"; } catch (e) { } return "after"; }
trace(returns());                 //= from try
function returnsLast() { try { return "value"; } finally { trace("on the way"); } }
trace(returnsLast());             //= on the way
                                  //= value
function inHandler() { try { throw 1; } catch (e) { return "handler " + e; } }
trace(inHandler());               //= handler 1
for (var i = 0; i < 5; i++) {
  try { if (i == 1) continue; if (i == 3) break; trace("i" + i); } finally { trace("fin" + i); } //= i0
}                                 //= fin0
                                  //= fin1
                                  //= i2
                                  //= fin2
                                  //= fin3
trace(i);                         //= 3
try { try { throw "inner"; } finally { trace("passing"); } } catch (e) { trace("outer " + e); } //= passing
                                  //= outer inner
try { try { throw "a"; } catch (e) { throw "b"; } } catch (e) { trace(e); } //= b
seen = "";
for (var k in {p: 1, q: 1}) {
  try { for (var j in {r: 1, s: 1}) { throw j; } } catch (e) { seen += "x"; }
}
trace(seen);                      //= xx
function nested2() {
  for (var n in {a: 1, b: 1}) { try { return n.length; } finally { trace("unwound"); } }
}
trace(nested2());                 //= unwound
                                  //= 1
function registers(a) { var b = a; try { b += 1; throw b; } catch (e) { b += e; } return b; }
trace(registers(1));              //= 4
function overrides() { try { throw 1; } finally { return 2; } }
trace(overrides());               //= 2
function lastWins() { for (var k in {a: 1}) { try { return 1; } finally { return 3; } } }
trace(lastWins());                //= 3
function innerLast() { try { try { return 1; } finally { return 4; } } finally { trace("outer"); } }
trace(innerLast());               //= outer
                                  //= 4
function throwing() { throw "t"; }
seen = "";
for (k in {a: 1, b: 1}) { try { seen += "x" + throwing(); } catch (e) { seen += "c"; } }
trace(seen);                      //= cc
function inLoop() { for (var j in {p: 1, q: 1, r: 1}) throwing(); }
caught = 0;
for (k in {a: 1, b: 1}) { try { inLoop(); } catch (e) { caught++; } }
trace(caught);                    //= 2
for (k in {a: 1, b: 1}) { try { for (j in {p: 1, q: 1}) throwing(); } catch (e) { caught++; } }
trace(caught);                    //= 4
function throwsAgain() { try { throw 1; } catch (e) { throw 2; } finally { trace("F"); } }
try { throwsAgain(); } catch (e) { trace("got " + e); } //= F
                                  //= got 2
function leaves(o) { while (true) { with (o) { try { if (v) break; } finally { v = 1; trace("w"); } } } return "done"; }
trace(leaves({v: 0}));            //= w
                                  //= w
                                  //= done
// What leaves a `finally` forgets what was on its way; nothing shows among a timeline's variables.
function forgets(how) {
  for (var i = 0; i < 3; i++) {
    try { if (how == "return") return "returned"; if (how == "throw") throw "thrown"; }
    finally { if (i == 0) continue; if (i == 1) break; }
  }
  return how + i;
}
trace(forgets("return") + forgets("throw") + forgets("")); //= return1throw11
for (i = 0; i < 2; i++) { try { throw "lost"; } catch (e) { throw e + "again"; } finally { continue; } }
trace("on" + i);                  //= on2
for (k in {a: 1, b: 1}) { try { throw k; } finally { for (j in {p: 1, q: 1}) break; continue; } }
trace(k + j);                     //= bp
function inner() { try { return 1; } finally { for (;;) { try { return 2; } finally { break; } } } }
trace(inner());                   //= 1
function both() { try { try { throw 1; } finally { throw 2; } } catch (e) { return e; } }
trace(both());                    //= 2
function deep(o) { try { with (o) { try { return v; } catch (e) { } } } finally { o.v = 9; } }
kept = {v: 5}; trace(deep(kept) + "," + kept.v); //= 5,9
function chosen(a) { try { return a ? "yes" : "no"; } finally { a = !a; } }
trace(chosen(true) + chosen(false)); //= yesno
function looped(o) { for (var k in o) { try { for (var j in o) { try { return k + j; } finally { j = 0; } } } finally { k = 0; } } }
for (k in {z: 1}) trace(looped({a: 1, b: 1}) + k); //= aaz
function found(o) { for (var k in o) if (k.indexOf("$") >= 0 && k != "$version") return k; return "nothing"; }
for (i = 0; i < 2; i++) { try { if (i == 1) break; trace(found(this)); } finally { trace(found(this)); } } //= nothing
                                  //= nothing
                                  //= nothing
for (;;) { try { throw "x"; } finally { trace(found(this)); break; } } //= nothing
trace(found(this));               //= nothing
for (k in {a: 1, b: 1}) { try { tellTarget("clip") { throw _name; } } catch (e) { trace(e + _target); } } //= clip/
                                  //= clip/
try { try { null.x.y(); throw "rethrown"; } finally { trace("first"); } } catch (e) { trace(e); } //= first
                                  //= rethrown
// A handler that tells a type takes only that; what none takes goes on.
function Own(text) { this.text = text; }
Own.prototype = new Error();
function Far() {}
function sorts(thrown) {
  try { throw thrown; }
  catch (o:Own) { return "own " + o.text; }
  catch (e:Error) { return "error " + e.message; }
  catch (s:String) { return "text " + s.length; }
  catch (n:Number) { return "number " + (n + 1); }
  catch (b:Boolean) { return "boolean " + !b; }
  catch (rest) { return "rest " + typeof rest; }
}
trace(sorts(new Own("mine")));    //= own mine
trace(sorts(new Error("bad")));   //= error bad
trace(sorts("abc"));              //= text 3
trace(sorts(41));                 //= number 42
trace(sorts(false));              //= boolean true
trace(sorts(new Far()));          //= rest object
function passes(thrown) {
  try { throw thrown; } catch (e:Error) { trace("taken"); } finally { trace("last"); }
  return "behind";
}
trace(passes(new Own("x")));      //= taken
                                  //= last
                                  //= behind
try { passes("unknown"); } catch (o:Far) { trace("never"); } catch (any:Object) { trace("any " + any); } //= last
                                  //= any unknown
seen = "";
for (i = 0; i < 4; i++) {
  try { if (i == 0) throw new Own("a"); if (i == 1) throw "b"; throw i; }
  catch (o:Own) { seen += o.text; continue; }
  catch (s:String) { seen += s; }
  catch (n:Number) { seen += n; break; }
  seen += "|";
}
trace(seen + i);                  //= ab|22
function outer(T) {
  var U = Far;
  function inner(thrown) {
    try { throw thrown; } catch (e:U) { return "far"; } catch (e:T) { return "taken " + e.text; }
  }
  return inner(new Own("x")) + inner(new Far());
}
trace(outer(Own));                //= taken xfar
function keeps(e) {
  try { try { throw "s"; } catch (e:Number) { } } catch (z) { }
  try { throw "s"; } catch (e:Number) { } catch (s:String) { return e + s; }
}
trace(keeps("p"));                //= ps
try { throw new Error("own name"); } catch (Error:Error) { trace(Error.message); } //= own name
delete Error;
_global.box = {};
_global.box.Own = Own;
try { throw new Own("dotted"); } catch (e:_global.box.Far) { trace("never"); } catch (e:box.Own) { trace(e.text); } //= dotted
import box.Own;
try { throw new Own("imported"); } catch (e:Own) { trace(e.text); } //= imported
trace(found(this));               //= nothing
// What was caught is a variable of the function's own.
e = "keep";
function catches() { try { throw 1; } catch (e) { } }
catches(); trace(e);              //= keep
function recurs(n) { try { throw n; } catch (ex) { if (n > 0) recurs(n - 1); return ex; } }
trace(recurs(3));                 //= 3
function closes(v) { try { throw v; } catch (own) { return function () { return own; }; } }
one = closes(1); two = closes(2); trace(one() + "," + two()); //= 1,2
// The name ends with its block.
class Holder {
  var e = "member"; static var shared = "static";
  function tell() { var seen = e; try { throw "x"; } catch (e) { seen += e; } return seen + this.e + e.length; }
  function hides(Holder) { try { throw Holder; } catch (shared) { return shared + Holder; } }
  static function own() { var Holder = 5; shared += Holder; return shared; }
  static function caught() { try { throw 1; } catch (Holder) { return shared + Holder; } }
}
trace(new Holder().tell());       //= memberxmember6
trace(new Holder().hides("h"));   //= hh
trace(Holder.own() + Holder.caught()); //= static5static51
function local() { var e = "local"; try { throw "t"; } catch (e) { e += "!"; var in2 = e; } return in2 + e; }
trace(local());                   //= t!local
// A block that catches stands in the target that was set around it.
where = "outside";
function boom() { throw "boom "; }
try { tellTarget("clip") { _root.boom(); } } catch (e) { trace(e + where); } //= boom outside
try { try { tellTarget("clip") { _root.boom(); } } finally { trace(where); } } catch (e) { trace(e); } //= outside
                                  //= boom 
/clip:where = "in clip";
tellTarget("/cli" + "p") { try { tellTarget("/") { _root.boom(); } } catch (e) { trace(e + where); } } //= boom in clip
// Nothing else in a function is called by a caught name.
function calls(e) { try { throw 1; } catch (e) { } e(); return typeof e; }
trace(calls(function () { trace("called"); })); //= called
                                  //= function
function looks(e) { try { throw 1; } catch (e) { } return eval("e") + e; }
trace(looks("p"));                //= pp
function nests() { try { throw 1; } catch (e) { try { throw 5; } catch (e) { trace(e); } return e; } }
trace(nests());                   //= 5
                                  //= 1
function shares() { var e = 1; var h = function () { return e; }; try { throw 2; } catch (e) { var g = function () { return e; }; } return e + "," + h() + "," + g(); }
trace(shares());                  //= 1,1,2
function lets() { try { throw where; } catch (where) { } return where; }
trace(lets());                    //= outside
function searches() { try { throw {v: 1}; } catch (e) { with (e) { v++; } return e.v + eval("e").v; } }
trace(searches());                //= 4
function news(e) { try { throw Own; } catch (e) { var o = new e("new"); for (e in {k: 1}) { } return o.text + e; } }
trace(news());                    //= newk
