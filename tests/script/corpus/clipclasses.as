// versions: 6-8
// What bare names mean in a class: members before built-in functions, statics of the base, and the
// members of clips.
class Base {
  static var total:Number = 3;
  var n:Number = 1;
  function play():String { return "P"; }
  function start():String { return play(); }
  function length():Number { return 9; }
  function measure():Number { return length(); }
  function getURL(a, b):String { return "own" + a + b; }
  function link():String { return getURL(1, 2); }
  function nested():Number { var f = function () { return n; }; return f.call(this); }
}
class Sub extends Base {
  function sum():Number { return total + n; }
  static function more():Number { return ++total; }
}
trace(new Base().start());   //= P
trace(new Base().measure()); //= 9
trace(new Base().link());    //= own12
trace(new Base().nested());  //= 1
trace(new Sub().sum());      //= 4
trace(Sub.more());           //= 4
trace(Base.total);           //= 4
class Walker extends MovieClip {
  var kid;
  var ticks = 0;
  function go():Number { gotoAndStop(3); return _currentframe; }
  function move():Number { _x = 33; _x += 2; return this._x; }
  function tell():String { return _name; }
  function make():String { createEmptyMovieClip("kid", 1); return kid._name; }
  function watch() { onEnterFrame = tick; }
  function tick() {
    if (++ticks < 2) return;
    delete onEnterFrame;
    trace("ticked " + (_parent == _root) + typeof onEnterFrame);
    removeMovieClip();
  }
  static function place(name:String) { return _root.attachMovie("Sym", name, 7); }
}
Object.registerClass("Sym", Walker);
Walker.place("walker");
trace(walker.go());          //= 3
trace(walker._currentframe); //= 3
trace(walker.move());        //= 35
trace(walker.tell());        //= walker
trace(walker.make());        //= kid
class Box {
  private var v = 1;
  function Box() { v = 10; }
  function get p() { return v; }
  function set p(x) { v = x; }
  function bump() { p++; return p += 2; }
  static function get q() { return "Q"; }
  static var first = new Box();
}
trace(new Box().bump());     //= 13
trace(Box.q);                //= Q
trace(Box.first.p);          //= 10
class L0 { var far = "top"; static var wide = "wide"; function both() { return "L0"; } }
class L1 extends L0 { } class L2 extends L1 { var far2 = 2; } class L3 extends L2 { function both() { return "L3"; } }
class Other extends L1 { var far = "other"; static var wide = "narrow"; }
class Branch extends L3 { static var wide = "branch"; var far2 = 3; }
class L4 extends L3 { } class L5 extends L4 { } class L6 extends L5 { function both() { return super.both(); } }
class L7 extends L6 { function all() { return far + far2 + wide + both(); } }
trace(new L7().all());       //= top2wideL3
walker.watch();
//@ frame 2
stop();                      //= ticked trueundefined
