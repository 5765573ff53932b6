// versions: 5-8
// What leaves loops, switches and blocks, and that nothing of it shows among a timeline's variables.
function isMade(name) { return name.indexOf("$") >= 0 && name != "$version"; }
function shown(o) { for (var k in o) if (isMade(k)) return "shown"; return "hidden"; }
function three() { return 3; }
function self() { return _root; }
switch (3) { case three() - 1: trace("two"); case three(): trace(shown(this)); default: trace("on"); } //= hidden
                             //= on
switch (three()) { case 1: case three(): case 4: trace("shared"); break; case 5: trace("never"); } //= shared
switch (three()) { case three() + 1: trace("never"); }
switch (9) { default: trace("other"); case three(): trace("behind"); break; case 4: trace("never"); } //= other
                             //= behind
function nested(a, b) {
  switch (a) {
    case three():
      switch (b) { case three(): return "both"; default: break; }
      return "first";
  }
  return "none";
}
trace(nested(3, 3) + nested(3, 1) + nested(1, 3)); //= bothfirstnone
var rounds = "";
for (var i = 0; i < 4; i++) { switch (i) { case three() - 2: continue; case three(): break; default: rounds += i; } rounds += "."; }
trace(rounds);               //= 0.2..
o = {p: 1};
for (i = 0; i < 3; i++) { with (o) { if (i == 1) break; trace(shown(_root)); } } //= hidden
trace(i + shown(this));      //= 1hidden
for (i = 0; i < 3; i++) with (o) { with (o) { if (i != 1) continue; } trace("with " + i); } //= with 1
trace(shown(this));          //= hidden
for (var k in this) if (isMade(k)) trace("in this: " + k);
for (k in self()) if (isMade(k)) trace("in what a function gives: " + k);
for (k in Object) trace("in Object: " + k);
list = [{a: 1}, {b: 2}];
for (k in list[three() - 2]) trace(k); //= b
target = {inner: {}};
function inner() { return target.inner; }
for (inner().last in {z: 1}) trace(inner().last + shown(this)); //= zhidden
for (inner()["l" + three()] in {y: 1}) trace(inner().l3);    //= y
for (eval("tar" + "geted") in {x: 1}) trace(targeted);       //= x
function early(o) { for (var k in o) { for (var j in o) { return k + j; } } }
for (k in {a: 1}) trace(early({m: 1}) + k);                  //= mma
function within(o) { for (var k in o) with (o) { for (var j in o) { return n; } } }
for (k in {a: 1}) trace(within({n: 7}) + k);                 //= 7a
function told(o) { for (var k in o) { tellTarget("clip") { for (var j in o) return _name + j; } } }
trace(told({q: 1}) + _target);                               //= clipq/
n = 0;
function clipOf() { n++; return _root.clip; }
tellTarget(clipOf()) { tellTarget(_root) { trace(shown(this) + shown(Object)); } } //= hiddenshown
trace(shown(Object) + n);    //= hidden1
for (i = 0; i < 2; i++) tellTarget(clipOf()) { tellTarget(_root) { break; } }
trace(shown(Object) + shown(this) + n); //= hiddenhidden2
function inTargets() { tellTarget(clipOf()) { tellTarget(_root) n++; return _name; } }
trace(inTargets() + n);      //= clip4
