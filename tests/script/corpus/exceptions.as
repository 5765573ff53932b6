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
